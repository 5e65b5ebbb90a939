#pragma once

#include <string>
#include <vector>

#include <sys/types.h>

/// The one way the host starts a program, for the process runner and the interactive process
/// alike: no shell, the arguments as given (argv[0] first), in `directory` when it is not
/// empty, in a process group of its own, with default signal handling and no blocked signal,
/// and with nothing open but standard input, output and error (`input` -1: /dev/null). A
/// program name without a slash is looked up on PATH. The child counts as a running program
/// until forgetProgram. The pid, or -1 with the reason in `error`. With `pidFd`, a pidfd of
/// the program made in the same call goes there (-1 where the kernel makes none).
pid_t spawnProgram(const std::string& program, const std::vector<std::string>& arguments,
                   const std::string& directory, int input, int output, int error, std::string& errorText,
                   int* pidFd = nullptr);
/// After the program was reaped.
void forgetProgram(pid_t pid);
/// True when this process has no child at all, running or ended: then nothing a finished
/// program started can still run, as the host adopts what programs leave.
bool noChildLeft();
/// Stops whatever finished programs left behind, also what left their process groups: the
/// host adopts such processes (Linux child subreaper). `group`, when given, is a finished
/// program's process group, stopped with it. Costs one system call when none is left.
void stopLeftovers(pid_t group = 0);
