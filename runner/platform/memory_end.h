#pragma once

namespace vtlcmd::runner {

/// Has `end`, which must not return, called when memory runs out where no exception can leave: in
/// the plug-in's entry, which may not throw, and in destructors of libraries, some of which
/// allocate. Whatever else can't leave aborts the program as ever. Takes
/// operator new's handler. A later call replaces `end`.
void endWithoutMemoryBy(void (*end)());

}  // namespace vtlcmd::runner
