// XML files, kind and hostile ones.

#include "workspace/xml_document.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "core/utilities/encoding.h"

namespace zentlor::workspace {
namespace {

class XmlFile : public testing::Test {
  protected:
    XmlFile() { std::filesystem::create_directories(folder_); }
    ~XmlFile() override { std::filesystem::remove_all(folder_); }

    Text Write(const std::string& name, const std::string& content) {
        std::ofstream(folder_ / name, std::ios::binary) << content;
        return FromUtf8((folder_ / name).string());
    }
    // The document with the settings of the options dialog.
    std::unique_ptr<XmlDocument> Open(const std::string& content, bool& loaded) {
        auto document = LibxmlLibrary().CreateDocument();
        document->SetPreserveWhiteSpace(false);
        document->SetValidateOnParse(true);
        document->SetResolveExternals(false);
        loaded = document->Load(Write("x.xml", content));
        return document;
    }

    const std::filesystem::path folder_ =
        std::filesystem::temp_directory_path() / ("zentlor_xml_" + std::to_string(::getpid()));
};

// Ten entities of ten of the one before: 10 to the power of 9 in all, of `core` each.
std::string Growing(const std::string& core) {
    std::string dtd = "<!DOCTYPE a [<!ENTITY e0 \"" + core + "\">";
    for (int i = 1; i <= 9; ++i) {
        dtd += "<!ENTITY e" + std::to_string(i) + " \"";
        for (int k = 0; k < 10; ++k) dtd += "&e" + std::to_string(i - 1) + ";";
        dtd += "\">";
    }
    return dtd + "]><a><b>&e9;</b></a>";
}

std::string Nested(int depth) {
    std::string text;
    for (int i = 0; i < depth; ++i) text += "<a>";
    for (int i = 0; i < depth; ++i) text += "</a>";
    return text;
}

TEST_F(XmlFile, TextAtAPath) {
    struct Row {
        const char* why;
        std::string content;
        TextView path;
        const char* text;  ///< nullptr: no such element
    };
    const Row rows[] = {
        {"plain", "<a><b>eins</b></a>", u"a/b", "eins"},
        {"the first of two", "<a><b>eins</b><b>zwei</b></a>", u"a/b", "eins"},
        {"another root", "<z><b>eins</b></z>", u"a/b", nullptr},
        {"no element at the end of the path", "<a><b/></a>", u"a/b/c", nullptr},
        {"an empty path is no element", "<a/>", u"", nullptr},
        {"empty text", "<a><b></b></a>", u"a/b", ""},
        {"CDATA and references", "<a><b><![CDATA[<&>]]> &amp; &#228;</b></a>", u"a/b", "<&> & ä"},
        {"line ends come as LF", "<a><b>eins\r\nzwei\rdrei</b></a>", u"a/b", "eins\nzwei\ndrei"},
        {"text of inner elements", "<a><b>eins <c>zwei</c></b></a>", u"a/b", "eins zwei"},
        {"the encoding is what the file declares",
         "<?xml version=\"1.0\" encoding=\"windows-1252\"?><a><b>\xE4\x80</b></a>", u"a/b", "ä€"},
        {"an entity of the document itself",
         "<!DOCTYPE a [<!ELEMENT a (b)><!ELEMENT b (#PCDATA)><!ENTITY e \"x\">]>"
         "<a><b>&e;&e;</b></a>",
         u"a/b", "xx"},
        {"a grammar elsewhere is not fetched", "<!DOCTYPE a SYSTEM \"/nowhere.dtd\"><a><b>eins</b></a>", u"a/b",
         "eins"},
    };
    for (const Row& row : rows) {
        bool loaded = false;
        const auto document = Open(row.content, loaded);
        ASSERT_TRUE(loaded) << row.why << ": " << ToUtf8(document->ParseErrorReason());
        const auto element = document->SelectSingleNode(row.path);
        ASSERT_EQ(element != nullptr, row.text != nullptr) << row.why;
        if (element) {
            EXPECT_EQ(ToUtf8(element->TextContent()), row.text) << row.why;
        }
    }
}

TEST_F(XmlFile, RefusedFilesSayWhy) {
    struct Row {
        const char* why;
        std::string content;
        const char* reason;  ///< part of it
    };
    const Row rows[] = {
        {"an element is not closed", "<a>\n<b></a>", "(line 2)"},
        {"an empty file", "", "empty"},
        {"no XML", "MZ\x90\1\2", ""},
        {"bytes that the encoding does not have", "<a>\xE4</a>", "UTF-8"},
        {"an entity that nobody declares", "<a>&e;</a>", "Entity"},
        {"does not meet its grammar", "<!DOCTYPE a [<!ELEMENT a (b)><!ELEMENT b EMPTY>]><a><c/></a>", "element c"},
        {"an entity of itself", "<!DOCTYPE a [<!ENTITY e \"&e;\">]><a>&e;</a>", ""},
        {"entities that grow without end", Growing("lachen"), ""},
        {"entities that grow to nothing", Growing(""), ""},
        {"deeper than any document", Nested(5000), "depth"},
    };
    for (const Row& row : rows) {
        bool loaded = true;
        const auto document = Open(row.content, loaded);
        EXPECT_FALSE(loaded) << row.why;
        const std::string reason = ToUtf8(document->ParseErrorReason());
        EXPECT_FALSE(reason.empty()) << row.why;
        EXPECT_NE(reason.find(row.reason), std::string::npos) << row.why << ": " << reason;
        EXPECT_EQ(document->SelectSingleNode(u"a"), nullptr) << row.why;
    }
}

TEST_F(XmlFile, NothingOutsideTheFileIsRead) {
    const std::string secret = ToUtf8(Write("secret.txt", "geheim"));
    const std::string grammar = ToUtf8(Write("g.dtd", "<!ENTITY g \"geheim\">"));
    const std::string documents[] = {
        "<!DOCTYPE a [<!ELEMENT a ANY><!ENTITY e SYSTEM \"file://" + secret + "\">]><a>&e;</a>",
        "<!DOCTYPE a [<!ENTITY % p SYSTEM \"file://" + grammar + "\"> %p;]><a>&g;</a>",
        "<!DOCTYPE a SYSTEM \"file://" + grammar + "\"><a>&g;</a>",
        "<a xmlns:xi=\"http://www.w3.org/2001/XInclude\"><xi:include href=\"" + secret + "\" parse=\"text\"/></a>",
    };
    for (const std::string& content : documents) {
        bool loaded = false;
        const auto document = Open(content, loaded);
        const auto root = document->SelectSingleNode(u"a");
        const std::string text = root ? ToUtf8(root->TextContent()) : "";
        EXPECT_EQ(text.find("geheim"), std::string::npos) << content;
    }
}

TEST_F(XmlFile, FilesThatAreNone) {
    LibxmlLibrary library;
    EXPECT_FALSE(library.FileExists(FromUtf8(folder_.string()))) << "a folder";
    EXPECT_FALSE(library.FileExists(FromUtf8((folder_ / "nothing.xml").string())));
    EXPECT_TRUE(library.FileExists(Write("ä%20.xml", "<a/>"))) << "a name that is no address";
    const auto document = library.CreateDocument();
    EXPECT_TRUE(document->Load(Write("ä%20.xml", "<a/>")));
    EXPECT_FALSE(document->Load(u"/nowhere/x.xml"));
    EXPECT_NE(document->ParseErrorReason().find(u"/nowhere/x.xml"), Text::npos);
    EXPECT_EQ(document->SelectSingleNode(u"a"), nullptr) << "nothing of the file before is left";
}

}  // namespace
}  // namespace zentlor::workspace
