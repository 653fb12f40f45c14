#include "workspace/compiler.h"

#include "vba/canonical.h"
#include "vba/tokenizer.h"
#include "workspace/stopwatch.h"

namespace zentlor::workspace {

namespace {

class Compiler {
  public:
    Compiler(std::vector<readers::SourceModule>& modules, bool keepRawCode, StageTimes* times)
        : modules_(modules), keepRawCode_(keepRawCode), times_(times) {
        result_.wordPlaces.resize(modules.size());
        result_.rawCode.resize(modules.size());
    }

    CompiledModules Run() {
        for (std::size_t i = 0; i < modules_.size(); ++i) {
            ReadWords(i);
            ReadTokens(i);
            LearnNames(i);
            CheckSyntax(i);
        }
        // Only now are all names known: a use may stand in front of its declaration.
        for (std::size_t i = 0; i < modules_.size(); ++i) {
            if (!canonicaliser_.MayChange(i)) continue;
            ReadTokens(i);
            result_.wordPlaces[i] = {};
            Rewrite(i);
            ReadWords(i);
        }
        return std::move(result_);
    }

  private:
    void ReadWords(std::size_t i) {
        const Stopwatch watch(times_, &StageTimes::index);
        result_.wordPlaces[i] = result_.words.Read(modules_[i].code);
    }

    void ReadTokens(std::size_t i) {
        const Stopwatch watch(times_, &StageTimes::tokens);
        tokenizer_.Read(modules_[i].code, result_.wordPlaces[i], tokens_);
    }

    void LearnNames(std::size_t i) {
        const Stopwatch watch(times_, &StageTimes::canonical);
        canonicaliser_.LearnName(modules_[i].name);
        canonicaliser_.Learn(tokens_, modules_[i].code);
    }

    void CheckSyntax(std::size_t i) {
        const Stopwatch watch(times_, &StageTimes::syntax);
        for (vba::SyntaxError& error : vba::CheckSyntax(modules_[i].code, tokens_)) {
            result_.errors.push_back({i, std::move(error)});
        }
    }

    void Rewrite(std::size_t i) {
        const Stopwatch watch(times_, &StageTimes::canonical);
        Text& code = modules_[i].code;
        Text canonical;
        if (!canonicaliser_.Write(tokens_, code, canonical)) return;
        if (keepRawCode_) result_.rawCode[i] = std::move(code);
        code = std::move(canonical);
    }

    std::vector<readers::SourceModule>& modules_;
    bool keepRawCode_;
    StageTimes* times_;
    CompiledModules result_;
    vba::Tokenizer tokenizer_;
    vba::Canonicaliser canonicaliser_;
    vba::Tokens tokens_;  // of one module at a time: those of a whole project would be larger than its text
};

}  // namespace

CompiledModules Compile(std::vector<readers::SourceModule>& modules, bool keepRawCode, StageTimes* times) {
    return Compiler(modules, keepRawCode, times).Run();
}

}  // namespace zentlor::workspace
