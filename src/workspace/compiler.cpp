#include "workspace/compiler.h"

#include <algorithm>

#include "vba/canonical.h"
#include "vba/tokenizer.h"
#include "workspace/stopwatch.h"

namespace zentlor::workspace {

namespace {

// What the work on a project takes, in bytes: measured over code of all kinds, and rounded up.
class MemoryEstimate {
  public:
    explicit MemoryEstimate(std::uint64_t available) : available_(available) {}

    /// One more module.
    void Add(TextView code) {
        characters_ += code.size();
        if (IsSmall()) return;
        bool inWord = false;
        std::uint64_t words = 0;
        std::uint64_t marks = 0;
        for (const char16_t c : code) {
            const bool isWord = IsIndexCharacter(c);
            words += static_cast<std::uint64_t>(isWord && !inWord);
            marks += static_cast<std::uint64_t>(!isWord && c != u' ');
            inWord = isWord;
        }
        places_ += words;
        mostTokens_ = std::max(mostTokens_, words + marks);
    }

    /// How many different words the project may have.
    std::uint32_t MostWords() const {
        if (IsSmall()) return kNoWord;
        const std::uint64_t rest = available_ - std::min(available_, Taken());
        return static_cast<std::uint32_t>(std::min<std::uint64_t>(rest / kWord, kNoWord));
    }
    /// For a module of so many characters in a project of so many different words.
    bool SufficesToRewrite(std::size_t characters, std::uint32_t words) const {
        return IsSmall() || Taken() + kWord * words + kRewritten * characters <= available_;
    }

  private:
    static constexpr std::uint64_t kMostPerCharacter = 40;  // whatever the code is
    static constexpr std::uint64_t kCharacter = 2;
    static constexpr std::uint64_t kPlace = 8;
    static constexpr std::uint64_t kWord = 180;     // a different one, in all tables that know it
    static constexpr std::uint64_t kToken = 24;     // of the largest module, or what the checks make of it
    static constexpr std::uint64_t kRewritten = 6;  // a character of the module that is written anew

    bool IsSmall() const { return kMostPerCharacter * characters_ <= available_; }
    // Without the words.
    std::uint64_t Taken() const { return kCharacter * characters_ + kPlace * places_ + kToken * mostTokens_; }

    std::uint64_t available_;
    std::uint64_t characters_ = 0;
    // Of the modules with which the project became large.
    std::uint64_t places_ = 0;
    std::uint64_t mostTokens_ = 0;
};

class Compiler {
  public:
    Compiler(std::vector<readers::SourceModule>& modules, const CompileOptions& options)
        : modules_(modules), keepRawCode_(options.keepRawCode), times_(options.times), memory_(options.memory) {
        result_.wordPlaces.resize(modules.size());
        result_.rawCode.resize(modules.size());
    }

    CompiledModules Run() {
        for (std::size_t i = 0; i < modules_.size(); ++i) {
            if (!TakeWords(i)) {
                LeaveOutFrom(i);
                break;
            }
            ReadTokens(i);
            LearnNames(i);
            CheckSyntax(i);
        }
        // Only now are all names known: a use may stand in front of its declaration.
        for (std::size_t i = 0; i < modules_.size(); ++i) {
            if (!canonicaliser_.MayChange(i)) continue;
            if (!memory_.SufficesToRewrite(modules_[i].code.size(), result_.words.Size())) {
                LeaveOutFrom(i);
                break;
            }
            ReadTokens(i);
            result_.wordPlaces[i] = {};
            Rewrite(i);
            ReadWords(i);
        }
        return std::move(result_);
    }

  private:
    // False if the memory does not suffice for the module.
    bool TakeWords(std::size_t i) {
        MemoryEstimate withModule = memory_;
        withModule.Add(modules_[i].code);
        const std::uint32_t mostWords = withModule.MostWords();
        if (mostWords > 0) ReadWords(i, mostWords);
        if (result_.words.Size() >= mostWords) return false;
        memory_ = withModule;
        return true;
    }

    void ReadWords(std::size_t i, std::uint32_t mostWords = kNoWord) {
        const Stopwatch watch(times_, &StageTimes::index);
        result_.wordPlaces[i] = result_.words.Read(modules_[i].code, mostWords);
    }

    void LeaveOutFrom(std::size_t i) {
        modules_.erase(modules_.begin() + static_cast<std::ptrdiff_t>(i), modules_.end());
        result_.wordPlaces.resize(i);
        result_.rawCode.resize(i);
        std::erase_if(result_.errors, [i](const CompileError& error) { return error.component >= i; });
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
    MemoryEstimate memory_;
    CompiledModules result_;
    vba::Tokenizer tokenizer_;
    vba::Canonicaliser canonicaliser_;
    vba::Tokens tokens_;  // of one module at a time: those of a whole project would be larger than its text
};

}  // namespace

CompiledModules Compile(std::vector<readers::SourceModule>& modules, const CompileOptions& options) {
    return Compiler(modules, options).Run();
}

}  // namespace zentlor::workspace
