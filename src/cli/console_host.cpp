#include "cli/console_host.h"

#include <fmt/format.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdio>

#include "cli/words.h"
#include "core/analysis/run_driver.h"
#include "core/analysis/source_model.h"
#include "core/utilities/encoding.h"

namespace zentlor::cli {

namespace {

using namespace std::chrono_literals;

constexpr auto kFirstLineAfter = 1s;
constexpr auto kBetweenLines = 100ms;

std::atomic<bool> interrupted = false;

extern "C" void OnInterrupt(int) {
    interrupted = true;
}

}  // namespace

ConsoleHost::ConsoleHost(std::string requireDeclaration)
    : requireDeclaration_(std::move(requireDeclaration)),
      terminal_(isatty(STDERR_FILENO) == 1),
      nextLine_(start_ + kFirstLineAfter) {}

void ConsoleHost::WatchInterrupt() {
    struct sigaction action = {};
    action.sa_handler = OnInterrupt;
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    sigaction(SIGINT, &action, nullptr);
}

bool ConsoleHost::Interrupted() {
    return interrupted;
}

void ConsoleHost::SetProject(VBProject& project, bool compiled) {
    project_ = &project;
    compiled_ = compiled;
}

Text ConsoleHost::RequireDeclaration(TextView) {
    return FromUtf8(requireDeclaration_);
}

void ConsoleHost::SetTest(TextView text) {
    if (!terminal_ || SteadyClock::now() < nextLine_) return;
    nextLine_ = SteadyClock::now() + kBetweenLines;
    lineShown_ = true;
    // A line that is wider than the terminal is cut there: only one that does not wrap can be cleared.
    const std::string line =
        fmt::format("\r\033[K\033[?7l[{}/{}] {}: {}\033[?7h", value_, maximum_, Printable(object_), Printable(text));
    std::fputs(line.c_str(), stderr);
}

void ConsoleHost::ClearProgressLine() {
    if (lineShown_) std::fputs("\r\033[K", stderr);
    lineShown_ = false;
}

void ConsoleHost::DoEvents() {
    if (interrupted && session_ != nullptr && !session_->blnAbbruch) StopClicked(*session_);
}

void ConsoleHost::Show(TextView text, BoxIcon, TextView title) {
    ClearProgressLine();
    if (!title.empty()) Tell(Printable(title));
    const Text lines = ReplaceAll(text, u"\r\n", u"\n");
    for (std::size_t begin = 0; begin <= lines.size();) {
        const std::size_t end = std::min(lines.find(u'\n', begin), lines.size());
        Tell(Printable(TextView(lines).substr(begin, end - begin)));
        begin = end + 1;
    }
}

std::int64_t ConsoleHost::Now() {
    return std::chrono::duration_cast<std::chrono::seconds>(SteadyClock::now() - start_).count();
}

}  // namespace zentlor::cli
