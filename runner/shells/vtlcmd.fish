# Completion of vtlcmd in fish. The program itself knows how a word may go on.

function __vtlcmd_complete
    set -l words (commandline -opc)
    set -l current (commandline -ct)
    for line in ($words[1] complete $words[2..-1] "$current" 2>/dev/null)
        if string match -q \t'*' -- $line
            set -l before (string sub -s 2 -- $line)
            set -l file (string sub -s (math (string length -- $before) + 1) -- $current)
            for path in (__fish_complete_path $file)
                echo $before$path
            end
        else
            echo $line
        end
    end
end

complete -c vtlcmd -f -a '(__vtlcmd_complete)'
