#include "workspace/compiler.h"

#include "vba/canonical.h"
#include "vba/tokenizer.h"
#include "workspace/stopwatch.h"

namespace zentlor::workspace {

namespace {

void TokenizeTimed(const readers::SourceModule& module, vba::Tokens& tokens, StageTimes* times) {
    const Stopwatch watch(times, &StageTimes::tokens);
    vba::Tokenize(module.code, tokens);
}

}  // namespace

CompiledModules Compile(std::vector<readers::SourceModule>& modules, bool keepRawCode, StageTimes* times) {
    CompiledModules result;
    result.rawCode.resize(modules.size());
    vba::Canonicaliser canonicaliser;
    vba::Tokens tokens;  // of one module at a time: those of a whole project would be larger than its text
    for (std::size_t i = 0; i < modules.size(); ++i) {
        TokenizeTimed(modules[i], tokens, times);
        {
            const Stopwatch watch(times, &StageTimes::canonical);
            canonicaliser.LearnName(modules[i].name);
            canonicaliser.Learn(tokens, modules[i].code);
        }
        const Stopwatch watch(times, &StageTimes::syntax);
        for (vba::SyntaxError& error : vba::CheckSyntax(modules[i].code, tokens)) {
            result.errors.push_back({i, std::move(error)});
        }
    }
    // Only now are all names known: a use may stand in front of its declaration.
    for (std::size_t i = 0; i < modules.size(); ++i) {
        if (!canonicaliser.MayChange(i)) continue;
        TokenizeTimed(modules[i], tokens, times);
        const Stopwatch watch(times, &StageTimes::canonical);
        Text& code = modules[i].code;
        Text canonical;
        if (!canonicaliser.Write(tokens, code, canonical)) continue;
        if (keepRawCode) result.rawCode[i] = std::move(code);
        code = std::move(canonical);
    }
    return result;
}

}  // namespace zentlor::workspace
