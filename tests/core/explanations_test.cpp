// The choice of an explanation, over documents in memory.

#include "core/options/explanations.h"

#include <gtest/gtest.h>

#include "support/fake_ui.h"

namespace zentlor::test {
namespace {

using Texts = std::map<Text, Text>;

// An element whose paths and texts are a table.
struct FakeElement : XmlElement {
    explicit FakeElement(Texts elements, Text ownText = {}) : texts(std::move(elements)), own(std::move(ownText)) {}
    std::shared_ptr<XmlElement> SelectSingleNode(TextView path) override {
        const auto found = texts.find(Text(path));
        return found == texts.end() ? nullptr : std::make_shared<FakeElement>(Texts{}, found->second);
    }
    Text TextContent() override { return own; }
    Texts texts;
    Text own;
};

struct FakeXml : XmlLibrary {
    explicit FakeXml(FakeHost& fakeHost) : host(fakeHost) {}

    struct Document : XmlDocument {
        explicit Document(FakeXml& library) : xml(library) {}
        void SetAsync(bool value) override { Set("async", value); }
        void SetPreserveWhiteSpace(bool value) override { Set("preserve", value); }
        void SetValidateOnParse(bool value) override { Set("validate", value); }
        void SetResolveExternals(bool value) override { Set("externals", value); }
        bool Load(TextView path) override {
            xml.host.Line("load " + ToUtf8(path));
            return xml.wellFormed;
        }
        Text ParseErrorReason() const override { return u"Zeile 3: kein Ende"; }
        std::shared_ptr<XmlElement> SelectSingleNode(TextView path) override {
            return path == xml.root ? std::make_shared<FakeElement>(xml.texts) : nullptr;
        }
        void Set(const char* property, bool value) {
            xml.host.Line(std::string(property) + (value ? " true" : " false"));
        }
        FakeXml& xml;
    };
    bool FileExists(TextView) override { return exists; }
    std::unique_ptr<XmlDocument> CreateDocument() override {
        if (!creatable) throw RuntimeError(429, "no XML here");
        return std::make_unique<Document>(*this);
    }

    FakeHost& host;
    bool exists = true, wellFormed = true, creatable = true;
    Text root = u"Erlaeuterungen";
    Texts texts = {{u"Module/Mod3", u"eins\nzwei"}, {u"Befehle/Cmd2", u""}};
};

TEST(ExplanationsTest, ReadingAndShowing) {
    const std::string loading =
        "async false\npreserve false\nvalidate true\nexternals false\nload /daten/Erlaeuterungen.xml\n";
    struct Row {
        const char* why;
        std::function<void(FakeXml&)> set;
        std::string trace;
        TextView path;
        std::string shown;  ///< a number: the message with that id
    };
    const Row rows[] = {
        {"a text of two lines", [](auto&) {}, loading, u"Module/Mod3", "eins\r\nzwei"},
        {"an empty text", [](auto&) {}, loading, u"Befehle/Cmd2", ""},
        {"no element for the box", [](auto&) {}, loading, u"Module/Mod4", "242"},
        {"no file", [](auto& x) { x.exists = false; }, "", u"Module/Mod3", "125"},
        {"another root", [](auto& x) { x.root = u"Buch"; }, loading, u"Module/Mod3", "125"},
        {"a broken file", [](auto& x) { x.wellFormed = false; }, loading + "box exclamation [] Zeile 3: kein Ende\n",
         u"Module/Mod3", "125"},
        {"no XML library", [](auto& x) { x.creatable = false; },
         "box critical [] Ein Fehler ist aufgetreten:||||Modul: frm_Optionen|Prozedur: XMLEinlesen|Fehler-Nr.: "
         "429|no XML here\n",
         u"Module/Mod3", "125"},
    };
    for (const Row& row : rows) {
        PaneFixture f;
        FakeXml xml(f.host);
        row.set(xml);
        Explanations explanations(f.session, xml);
        explanations.XMLEinlesen(u"/daten");
        EXPECT_EQ(f.host.trace, row.trace) << row.why;
        const bool message = row.shown == "125" || row.shown == "242";
        const Text expected = message ? f.session.GetResourceString(std::stoi(row.shown)) : FromUtf8(row.shown);
        EXPECT_EQ(explanations.ErlaueuterungAnzeigen(row.path), expected) << row.why;
        explanations.Release();
        EXPECT_EQ(explanations.ErlaueuterungAnzeigen(row.path), f.session.GetResourceString(125)) << row.why;
    }
}

}  // namespace
}  // namespace zentlor::test
