"""A Slurm cluster of two nodes on this machine, in a folder of its own, gone with the context."""

import ctypes
import getpass
import os
import pathlib
import shutil
import signal
import socket
import subprocess
import time

PR_SET_PDEATHSIG, PR_SET_CHILD_SUBREAPER = 1, 36
LIBC = ctypes.CDLL(None)

CONFIGURATION = """\
ClusterName=test
SlurmctldHost={host}(127.0.0.1)
SlurmctldPort={ports[0]}
SlurmUser={user}
SlurmdUser={user}
AuthType=auth/none
# A requeued job starts after so many seconds, by default two minutes. Its node refuses it in the
# second in which it was ended, so StartTime=now would be too early.
AuthInfo=cred_expire=10
CredType=cred/none
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
JobAcctGatherType=jobacct_gather/none
AccountingStorageType=accounting_storage/none
JobCompType=jobcomp/none
SelectType=select/cons_tres
SelectTypeParameters=CR_Core
SchedulerParameters=batch_sched_delay=0,sched_min_interval=0,sched_interval=1
ReturnToService=2
SlurmdTimeout=5
MaxArraySize={array_size}
MailProg=/bin/true
StateSaveLocation={folder}/state
SlurmdSpoolDir={folder}/spool.%n
SlurmctldPidFile={folder}/slurmctld.pid
SlurmdPidFile={folder}/slurmd.%n.pid
NodeName=n1 NodeHostname={host} NodeAddr=127.0.0.1 Port={ports[1]} CPUs=1 State=UNKNOWN
NodeName=n2 NodeHostname={host} NodeAddr=127.0.0.1 Port={ports[2]} CPUs=1 State=UNKNOWN
PartitionName=main Nodes=ALL Default=YES MaxTime=10 State=UP
"""


def free_ports(count):
    sockets = [socket.socket() for _ in range(count)]
    for each in sockets:
        each.bind(("127.0.0.1", 0))
    ports = [each.getsockname()[1] for each in sockets]
    for each in sockets:
        each.close()
    return ports


def children_of(parents):
    found = {}
    for entry in pathlib.Path("/proc").iterdir():
        if not entry.name.isdigit():
            continue
        try:
            stat = (entry / "stat").read_text()
        except OSError:
            continue
        found.setdefault(int(stat.rpartition(")")[2].split()[1]), []).append(int(entry.name))
    processes, rest = [], list(parents)
    while rest:
        below = found.get(rest.pop(), [])
        processes += below
        rest += below
    return processes


def environment_of(process):
    try:
        return pathlib.Path(f"/proc/{process}/environ").read_bytes().split(b"\0")
    except OSError:
        return []


def parent_of(process):
    return int(pathlib.Path(f"/proc/{process}/stat").read_text().rpartition(")")[2].split()[1])


class Cluster:
    def __init__(self, folder, array_size=1001):
        self.folder = pathlib.Path(folder)
        self.array_size = array_size
        self.daemons = {}
        self.environment = {**os.environ, "SLURM_CONF": str(self.folder / "slurm.conf")}

    def __enter__(self):
        # What loses its parent in between becomes this process's child, and ends with the rest.
        LIBC.prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)
        self.folder.mkdir()
        (self.folder / "state").mkdir()
        (self.folder / "slurm.conf").write_text(CONFIGURATION.format(
            host=socket.gethostname().split(".")[0], ports=free_ports(3),
            user=getpass.getuser(), folder=self.folder,
            array_size=self.array_size))
        try:
            self.start("slurmctld")
            for node in ("n1", "n2"):
                self.start_node(node)
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        own = os.getpid()
        while processes := children_of([own]):
            for process in processes:
                try:
                    os.kill(process, signal.SIGKILL)
                except ProcessLookupError:
                    pass
            while True:
                try:
                    if os.waitpid(-1, os.WNOHANG)[0] == 0:
                        break
                except ChildProcessError:
                    break
            time.sleep(0.02)
        self.daemons.clear()

    def start(self, name, *words):
        program = shutil.which(name, path=os.environ["PATH"] + ":/usr/sbin:/sbin")
        if program is None:
            raise SystemExit(f"{name} isn't here: the test wants Debian's package slurm-wlm")
        log = open(self.folder / f"{'-'.join([name, *words])}.log", "ab")
        daemon = subprocess.Popen(
            [program, "-D", *words], env=self.environment, stdin=subprocess.DEVNULL, stdout=log,
            stderr=log, preexec_fn=lambda: LIBC.prctl(PR_SET_PDEATHSIG, signal.SIGTERM, 0, 0, 0))
        log.close()
        self.daemons[words[-1] if words else name] = daemon

    def start_node(self, node):
        (self.folder / f"spool.{node}").mkdir(exist_ok=True)
        self.start("slurmd", "-N", node)
        self.wait_for_node(node, "idle")

    def node_state(self, node):
        return self.command("sinfo", "--noheader", f"--nodes={node}", "--format=%t", check=False)

    def wait_for_node(self, node, state, seconds=60):
        end = time.monotonic() + seconds
        while self.node_state(node) != state:
            if time.monotonic() > end:
                logs = "".join(log.read_text() for log in self.folder.glob("*.log"))
                raise SystemExit(f"node {node} isn't {state}:\n{logs}")
            time.sleep(0.2)

    def processes_on(self, node):
        """What a node's tasks run."""
        mark = f"SLURMD_NODENAME={node}".encode()
        return [process for process in children_of([os.getpid()]) if mark in environment_of(process)]

    def kill_node(self, node):
        """All of it at once, like a machine that loses its power."""
        processes = set(self.processes_on(node))
        for process in list(processes):
            try:
                processes.add(parent_of(process))
            except OSError:
                pass
        daemon = self.daemons.pop(node)
        processes.add(daemon.pid)
        for process in processes - {os.getpid()}:
            try:
                os.kill(process, signal.SIGKILL)
            except ProcessLookupError:
                pass
        daemon.wait()

    def command(self, *words, check=True):
        result = subprocess.run(words, env=self.environment, stdin=subprocess.DEVNULL, text=True,
                                capture_output=True, timeout=120)
        if check and result.returncode != 0:
            raise SystemExit(f"{' '.join(words)}: {result.returncode}\n{result.stderr}")
        return result.stdout.strip()
