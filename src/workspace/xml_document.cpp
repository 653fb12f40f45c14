// XML through libxml2, held to what a data file may do. Entities are not replaced while the file is read, so that
// nothing is fetched for them, and their full size is known before anything expands them.

#include "workspace/xml_document.h"

#include <fcntl.h>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/valid.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "core/utilities/encoding.h"

namespace zentlor::workspace {

namespace {

using DocumentHandle = std::shared_ptr<xmlDoc>;

// Nodes and characters of a document with all its entities expanded. The file of this program has a hundredth of it.
constexpr std::int64_t kMostContent = 10'000'000;
constexpr int kDeepestNesting = 1000;

std::string_view View(const xmlChar* text) {
    return text == nullptr ? std::string_view() : reinterpret_cast<const char*>(text);
}

xmlNode* ElementNamed(xmlNode* first, std::string_view name) {
    for (xmlNode* node = first; node != nullptr; node = node->next) {
        if (node->type == XML_ELEMENT_NODE && View(node->name) == name) return node;
    }
    return nullptr;
}

// Follows a path of element names from a list of siblings downwards.
xmlNode* Follow(xmlNode* siblings, TextView path) {
    const std::string names = ToUtf8(path);
    std::string_view rest(names);
    for (;;) {
        const auto slash = rest.find('/');
        xmlNode* node = ElementNamed(siblings, rest.substr(0, slash));
        if (node == nullptr || slash == std::string_view::npos) return node;
        siblings = node->children;
        rest.remove_prefix(slash + 1);
    }
}

// Takes what the nodes hold, entities expanded, off `budget`; False once it is used up.
bool WithinBudget(const xmlDoc* document, const xmlNode* siblings, int depth, std::int64_t& budget) {
    if (depth > kDeepestNesting) return false;
    for (const xmlNode* node = siblings; node != nullptr; node = node->next) {
        budget -= 1;
        const bool text = node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE;
        if (text) budget -= static_cast<std::int64_t>(View(node->content).size());
        if (budget < 0) return false;
        const xmlNode* inner = node->type == XML_ELEMENT_NODE ? node->children : nullptr;
        if (node->type == XML_ENTITY_REF_NODE) {
            const xmlEntity* entity = xmlGetDocEntity(document, node->name);
            inner = entity == nullptr ? nullptr : entity->children;
        }
        if (!WithinBudget(document, inner, depth + 1, budget)) return false;
    }
    return true;
}

class Element : public XmlElement {
  public:
    Element(DocumentHandle document, xmlNode* node) : document_(std::move(document)), node_(node) {}

    std::shared_ptr<XmlElement> SelectSingleNode(TextView path) override {
        xmlNode* found = Follow(node_->children, path);
        return found == nullptr ? nullptr : std::make_shared<Element>(document_, found);
    }
    Text TextContent() override {
        const std::unique_ptr<xmlChar, decltype(xmlFree)> content(xmlNodeGetContent(node_), xmlFree);
        return FromUtf8(View(content.get()));
    }

  private:
    DocumentHandle document_;
    xmlNode* node_;
};

Text ReasonOf(const xmlError* error) {
    if (error == nullptr || error->message == nullptr) return u"The file is no well-formed XML document.";
    std::string reason = error->message;
    while (reason.ends_with('\n')) reason.pop_back();
    if (error->line > 0) reason += " (line " + std::to_string(error->line) + ")";
    return FromUtf8(reason);
}

void Silence(void*, const char*, ...) {}

// A grammar that stands in the document itself; one that lies elsewhere is not fetched, and nothing is measured by it.
bool DeclaresGrammar(const xmlDoc& document) {
    const xmlDtd* grammar = document.intSubset;
    return grammar != nullptr && grammar->SystemID == nullptr && grammar->ExternalID == nullptr;
}

bool MeetsGrammar(xmlDoc& document) {
    const std::unique_ptr<xmlValidCtxt, decltype(&xmlFreeValidCtxt)> context(xmlNewValidCtxt(), xmlFreeValidCtxt);
    if (!context) throw std::bad_alloc();
    context->error = Silence;
    context->warning = Silence;
    return xmlValidateDocument(context.get(), &document) == 1;
}

class Document : public XmlDocument {
  public:
    void SetAsync(bool) override {}  // Load always waits
    void SetPreserveWhiteSpace(bool preserve) override { preserveWhiteSpace_ = preserve; }
    void SetValidateOnParse(bool validate) override { validateOnParse_ = validate; }
    void SetResolveExternals(bool) override {}  // never

    bool Load(TextView path) override {
        reason_ = Parse(ToUtf8(path));
        if (!reason_.empty()) document_.reset();
        return reason_.empty();
    }
    Text ParseErrorReason() const override { return reason_; }
    std::shared_ptr<XmlElement> SelectSingleNode(TextView path) override {
        xmlNode* found = document_ ? Follow(document_->children, path) : nullptr;
        return found == nullptr ? nullptr : std::make_shared<Element>(document_, found);
    }

  private:
    // What is wrong with the file; empty if it was read.
    Text Parse(const std::string& path) {
        const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
        if (file < 0) return FromUtf8(path + ": " + std::strerror(errno));
        const std::unique_ptr<xmlParserCtxt, decltype(&xmlFreeParserCtxt)> context(xmlNewParserCtxt(),
                                                                                   xmlFreeParserCtxt);
        const int options = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NOCDATA |
                            (preserveWhiteSpace_ ? 0 : XML_PARSE_NOBLANKS);
        document_.reset(xmlCtxtReadFd(context.get(), file, path.c_str(), nullptr, options), xmlFreeDoc);
        ::close(file);
        if (!document_) return ReasonOf(xmlCtxtGetLastError(context.get()));
        std::int64_t budget = kMostContent;
        if (!WithinBudget(document_.get(), document_->children, 0, budget)) {
            return u"The entities of the file are too large or refer to themselves.";
        }
        const bool measured = validateOnParse_ && DeclaresGrammar(*document_);
        return measured && !MeetsGrammar(*document_) ? ReasonOf(xmlGetLastError()) : Text();
    }

    bool preserveWhiteSpace_ = true;
    bool validateOnParse_ = false;
    DocumentHandle document_;
    Text reason_;
};

}  // namespace

bool LibxmlLibrary::FileExists(TextView path) {
    struct stat status {};
    return ::stat(ToUtf8(path).c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

std::unique_ptr<XmlDocument> LibxmlLibrary::CreateDocument() {
    return std::make_unique<Document>();
}

}  // namespace zentlor::workspace
