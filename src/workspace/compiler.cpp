#include "workspace/compiler.h"

#include "vba/canonical.h"
#include "vba/tokenizer.h"
#include "workspace/stopwatch.h"

namespace zentlor::workspace {

CompiledModules Compile(std::vector<readers::SourceModule>& modules, bool keepRawCode, StageTimes* times) {
    CompiledModules result;
    result.rawCode.resize(modules.size());
    vba::Canonicaliser canonicaliser;
    // Names are learned from the whole project before the first line is written: a use may stand in front of its
    // declaration.
    std::vector<vba::Tokens> tokens(modules.size());
    for (std::size_t i = 0; i < modules.size(); ++i) {
        canonicaliser.LearnName(modules[i].name);
        {
            const Stopwatch watch(times, &StageTimes::tokens);
            vba::Tokenize(modules[i].code, tokens[i]);
        }
        const Stopwatch watch(times, &StageTimes::canonical);
        canonicaliser.Learn(tokens[i], modules[i].code);
    }
    for (std::size_t i = 0; i < modules.size(); ++i) {
        Text& code = modules[i].code;
        Text canonical;
        bool changed = false;
        {
            const Stopwatch watch(times, &StageTimes::canonical);
            changed = canonicaliser.Write(i, tokens[i], code, canonical);
        }
        {
            const Stopwatch watch(times, &StageTimes::syntax);
            for (vba::SyntaxError& error : vba::CheckSyntax(code, tokens[i])) {
                result.errors.push_back({i, std::move(error)});
            }
        }
        tokens[i] = {};
        if (!changed) continue;
        if (keepRawCode) result.rawCode[i] = std::move(code);
        code = std::move(canonical);
    }
    return result;
}

}  // namespace zentlor::workspace
