// Runs every annotated source below tests/checks with only its own check switched on, and demands the announced hints
// and no others. The pages of the checks are held to their word in the same way.

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/analysis/run_driver.h"
#include "support/check_fixture.h"
#include "support/fake_host.h"

namespace zentlor {
namespace {

namespace fs = std::filesystem;

const fs::path kSource = ZENTLOR_SOURCE_DIR;

std::string ReadFile(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

HintSequence RunOnly(CheckId check, const test::Fixture& fixture) {
    test::FakeHost host;
    host.requireDeclaration = fixture.requireDeclaration;
    for (const auto& c : fixture.components) host.project->Add(c.name, c.type, c.code);
    Session session(host.AsHost());
    session.udtOptionen.AllgSprache = 1;
    session.udtOptionen[check] = true;
    EXPECT_EQ(AlleModulePrüfen(session), RunResult::Finished) << host.trace;
    EXPECT_EQ(session.FailureCount(), 0) << host.trace;
    return session.lvwErgebnis.Emitted();
}

std::string Describe(TextView component, TextView procedure, int line) {
    return ToUtf8(component) + "." + ToUtf8(procedure) + ":" + std::to_string(line);
}

bool Announces(const test::ExpectedHint& expected, const Hint& hint) {
    const bool placed = hint.check == CheckId::ModOptionExplicitAutomatisch || expected.component == hint.strNameVBC;
    return placed && expected.procedure == hint.strProzedur && expected.line == hint.lngZeile &&
           TextView(hint.strHinweis).find(expected.textPart) != Text::npos;
}

class CheckTest : public testing::TestWithParam<CheckInfo> {};

TEST_P(CheckTest, GivesTheAnnouncedHintsAndNoOthers) {
    const CheckInfo& info = GetParam();
    const fs::path file = kSource / "tests/checks" / (ToUtf8(info.key) + ".vba");
    ASSERT_TRUE(fs::exists(file)) << file;
    const test::Fixture fixture = test::ParseFixture(ReadFile(file));
    ASSERT_EQ(fixture.expected.empty(), fixture.expectsNothing);
    std::vector<test::ExpectedHint> open = fixture.expected;
    for (const Hint& hint : RunOnly(info.id, fixture)) {
        EXPECT_EQ(hint.check, info.id);
        const auto match =
            std::find_if(open.begin(), open.end(), [&](const auto& expected) { return Announces(expected, hint); });
        if (match == open.end()) {
            ADD_FAILURE() << "not announced: " << Describe(hint.strNameVBC, hint.strProzedur, hint.lngZeile) << " "
                          << ToUtf8(hint.strHinweis);
        } else {
            open.erase(match);
        }
    }
    for (const auto& expected : open) {
        ADD_FAILURE() << file.filename() << ":" << expected.fixtureLine
                      << ": did not come: " << Describe(expected.component, expected.procedure, expected.line) << " "
                      << ToUtf8(expected.textPart);
    }
}

// The code of the fenced block below a heading of a page.
Text Example(const std::string& page, const std::string& heading) {
    const auto section = page.find("\n## " + heading + "\n");
    const auto fence = page.find("```", section);
    const auto begin = page.find('\n', fence) + 1;
    const auto end = page.find("```", begin);
    if (section == std::string::npos || end == std::string::npos) return {};
    return FromUtf8(page.substr(begin, end - begin));
}

TEST_P(CheckTest, PageKeepsItsWord) {
    const CheckInfo& info = GetParam();
    const std::string page = ReadFile(kSource / "docs/checks" / (ToUtf8(info.key) + ".md"));
    const auto hintsOf = [&](const std::string& heading) {
        const Text code = Example(page, heading);
        EXPECT_FALSE(code.empty()) << heading;
        test::Fixture fixture;
        if (info.input == CheckInput::PerRun) {
            fixture.requireDeclaration = code.find(u"= 0") != Text::npos ? u"0" : u"1";
        } else {
            const bool events = info.id == CheckId::ModDeklariertesEventNichtGefeuert;
            fixture.components.push_back({u"Beispiel", events ? 2 : 1, code, 0});
        }
        return RunOnly(info.id, fixture).size();
    };
    EXPECT_GT(hintsOf("Wrong"), 0U);
    EXPECT_EQ(hintsOf("Right"), 0U);
}

INSTANTIATE_TEST_SUITE_P(Catalogue, CheckTest, testing::ValuesIn(kCatalogue),
                         [](const auto& row) { return ToUtf8(row.param.key); });

TEST(Catalogue, HoldsNothingBesideItsRows) {
    const auto strangers = [](const fs::path& folder, const std::string& ending) {
        std::string found;
        for (const auto& entry : fs::directory_iterator(folder)) {
            const std::string stem = entry.path().stem().string();
            const bool known = stem == "README" || std::any_of(kCatalogue.begin(), kCatalogue.end(),
                                                               [&](const auto& c) { return ToUtf8(c.key) == stem; });
            if (!known || entry.path().extension() != ending) found += entry.path().filename().string() + " ";
        }
        return found;
    };
    EXPECT_EQ(strangers(kSource / "tests/checks", ".vba"), "");
    EXPECT_EQ(strangers(kSource / "docs/checks", ".md"), "");
}

}  // namespace
}  // namespace zentlor
