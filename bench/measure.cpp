// measure RUNS COMMAND... -- COMMAND...: runs two commands in turn, RUNS times each, their standard output thrown away,
// all on one processor core. Prints the median wall time in milliseconds and the highest peak memory in kilobytes of
// the first, then of the second. A command may end with 0 or 1; any other end stops the measurement.

#include <fcntl.h>
#include <sched.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

struct Command {
    std::vector<char*> arguments;  // ended by a null pointer, as execvp wants them
    std::vector<double> milliseconds;
    long peakKilobytes = 0;
};

// One core, so that no run gains from a second one and the two see the same machine.
void StayOnOneCore() {
    cpu_set_t allowed;
    if (sched_getaffinity(0, sizeof allowed, &allowed) != 0) return;
    int last = -1;
    for (int core = 0; core < CPU_SETSIZE; ++core) {
        if (CPU_ISSET(core, &allowed)) last = core;
    }
    cpu_set_t one;
    CPU_ZERO(&one);
    if (last >= 0) CPU_SET(last, &one);
    if (last < 0 || sched_setaffinity(0, sizeof one, &one) != 0) std::fputs("measure: not pinned to a core\n", stderr);
}

[[noreturn]] void BecomeCommand(const Command& command) {
    const int nowhere = open("/dev/null", O_WRONLY);
    dup2(nowhere, STDOUT_FILENO);
    execvp(command.arguments[0], command.arguments.data());
    _exit(127);
}

void Run(Command& command) {
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child < 0) throw std::runtime_error("cannot start a process");
    if (child == 0) BecomeCommand(command);
    int status = 0;
    rusage usage{};
    wait4(child, &status, 0, &usage);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    if (!WIFEXITED(status) || WEXITSTATUS(status) > 1) {
        throw std::runtime_error(std::string(command.arguments[0]) + " failed");
    }
    command.milliseconds.push_back(time.count());
    command.peakKilobytes = std::max(command.peakKilobytes, usage.ru_maxrss);
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

}  // namespace

int main(int argc, char** argv) try {
    char** const end = argv + argc;
    char** const divider = std::find(argv, end, std::string("--"));
    const int runs = argc > 2 ? std::atoi(argv[1]) : 0;
    if (runs < 1 || divider <= argv + 2 || divider + 1 >= end) {
        std::fputs("usage: measure RUNS COMMAND... -- COMMAND...\n", stderr);
        return 2;
    }
    Command first{{argv + 2, divider}, {}, 0};
    Command second{{divider + 1, end}, {}, 0};
    first.arguments.push_back(nullptr);
    second.arguments.push_back(nullptr);
    StayOnOneCore();
    for (int run = 0; run < runs; ++run) {
        Run(first);
        Run(second);
    }
    std::printf("%.2f %ld %.2f %ld\n", Median(first.milliseconds), first.peakKilobytes, Median(second.milliseconds),
                second.peakKilobytes);
    return 0;
} catch (const std::exception& error) {
    std::fprintf(stderr, "measure: %s\n", error.what());
    return 1;
}
