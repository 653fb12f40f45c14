// Arbitrary bytes as the files of a project, a form feed between two modules: decoded, cut into tokens, brought into
// the editor's form, checked for syntax, and taken through the 45 checks whether or not they would compile.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/analysis/run_driver.h"
#include "readers/exported_module.h"
#include "support/fake_host.h"
#include "workspace/compiler.h"

namespace {

using zentlor::readers::SourceModule;

constexpr std::size_t kMostModules = 8;

std::vector<SourceModule> ReadModules(std::string_view bytes) {
    std::vector<SourceModule> modules;
    for (bool more = true; more && modules.size() < kMostModules;) {
        const std::size_t end = bytes.find('\f');
        more = end != std::string_view::npos;
        const std::string path = "modul" + std::to_string(modules.size()) + (more ? ".bas" : ".cls");
        auto module = zentlor::readers::ReadExportedModule(bytes.substr(0, end), path);
        if (module) modules.push_back(std::move(*module));
        bytes.remove_prefix(more ? end + 1 : bytes.size());
    }
    return modules;
}

std::ptrdiff_t LineEnds(const zentlor::Text& code) {
    return std::count(code.begin(), code.end(), u'\n');
}

// Nothing that a module holds may make a check fail: a failure report is a finding like a crash.
void RunChecks(const std::vector<SourceModule>& modules) {
    zentlor::test::FakeHost host;
    for (const SourceModule& module : modules)
        host.project->Add(module.name, static_cast<int>(module.type), module.code);
    zentlor::Session session(host.AsHost());
    session.udtOptionen = zentlor::OptionRecord::AllOn();
    const zentlor::RunResult result = zentlor::AlleModulePrüfen(session);
    if (result != zentlor::RunResult::Finished || session.FailureCount() != 0) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<SourceModule> modules;
    try {
        modules = ReadModules({reinterpret_cast<const char*>(data), size});
    } catch (const zentlor::readers::ReadError&) {
        return 0;
    }
    std::ptrdiff_t before = 0;
    std::ptrdiff_t after = 0;
    for (const SourceModule& module : modules) before += LineEnds(module.code);
    zentlor::workspace::Compile(modules, {});
    for (const SourceModule& module : modules) after += LineEnds(module.code);
    if (before != after) std::abort();
    RunChecks(modules);
    return 0;
}
