#include "workspace/compiler.h"

#include "vba/canonical.h"
#include "vba/tokenizer.h"
#include "workspace/stopwatch.h"

namespace zentlor::workspace {

CompiledModules Compile(std::vector<readers::SourceModule>& modules, bool keepRawCode, StageTimes* times) {
    CompiledModules result;
    result.rawCode.resize(modules.size());
    vba::Canonicaliser canonicaliser;
    vba::Tokens tokens;
    // Names are learned from the whole project before the first line is written: a use may stand in front of its
    // declaration. The tokens of all modules would not fit into the memory that a large project may take, so they are
    // made anew for the second pass.
    for (const readers::SourceModule& module : modules) {
        canonicaliser.LearnName(module.name);
        {
            const Stopwatch watch(times, &StageTimes::tokens);
            vba::Tokenize(module.code, tokens);
        }
        const Stopwatch watch(times, &StageTimes::canonical);
        canonicaliser.Learn(tokens, module.code);
    }
    for (std::size_t i = 0; i < modules.size(); ++i) {
        Text& code = modules[i].code;
        {
            const Stopwatch watch(times, &StageTimes::tokens);
            vba::Tokenize(code, tokens);
        }
        Text canonical;
        bool changed = false;
        {
            const Stopwatch watch(times, &StageTimes::canonical);
            changed = canonicaliser.Write(i, tokens, code, canonical);
        }
        const Stopwatch watch(times, &StageTimes::syntax);
        for (vba::SyntaxError& error : vba::CheckSyntax(code, tokens)) result.errors.push_back({i, std::move(error)});
        if (!changed) continue;
        if (keepRawCode) result.rawCode[i] = std::move(code);
        code = std::move(canonical);
    }
    return result;
}

}  // namespace zentlor::workspace
