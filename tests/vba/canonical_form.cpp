#include "canonical_form.h"

#include <gtest/gtest.h>

#include "core/utilities/encoding.h"
#include "vba/canonical.h"
#include "vba/tokenizer.h"

namespace zentlor::test {

std::vector<Text> CanonicalForms(const std::vector<Text>& modules, const std::vector<TextView>& components) {
    WordTable words;
    vba::Tokenizer tokenizer;
    vba::Canonicaliser canonicaliser;
    std::vector<vba::Tokens> tokens;
    for (TextView component : components) canonicaliser.LearnName(component);
    for (const Text& module : modules) {
        tokenizer.Read(module, words.Read(module), tokens.emplace_back());
        canonicaliser.Learn(tokens.back(), module);
    }
    std::vector<Text> forms = modules;
    for (std::size_t i = 0; i < modules.size(); ++i) {
        const bool changes = canonicaliser.Write(tokens[i], modules[i], forms[i]);
        EXPECT_TRUE(canonicaliser.MayChange(i) || !changes) << "changes unexpectedly: " << ToUtf8(modules[i]);
    }
    return forms;
}

Text CanonicalForm(TextView code, const std::vector<TextView>& components) {
    return CanonicalForms({Text(code)}, components).front();
}

}  // namespace zentlor::test
