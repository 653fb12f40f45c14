#pragma once

// The explanations of the options: a data file beside the component, read at each opening of the options dialog. The
// dialog works without it.

#include <memory>

#include "core/analysis/session.h"

namespace zentlor {

inline constexpr TextView kExplanationsFile = u"Erlaeuterungen.xml";
inline constexpr TextView kExplanationsRoot = u"Erlaeuterungen";

/// An element of an XML document, which it keeps alive.
class XmlElement {
  public:
    virtual ~XmlElement() = default;
    /// The first element on a path of child element names separated by "/", or nullptr.
    virtual std::shared_ptr<XmlElement> SelectSingleNode(TextView path) = 0;
    /// The text in the element, line ends as LF.
    virtual Text TextContent() = 0;
};

class XmlDocument {
  public:
    virtual ~XmlDocument() = default;
    virtual void SetAsync(bool async) = 0;  ///< False: Load returns when the file has been read
    virtual void SetPreserveWhiteSpace(bool preserve) = 0;
    /// True: a document that declares a grammar must meet it, or Load fails.
    virtual void SetValidateOnParse(bool validate) = 0;
    virtual void SetResolveExternals(bool resolve) = 0;
    /// False if the file cannot be read, is not well-formed or does not meet its grammar.
    virtual bool Load(TextView path) = 0;
    /// After a failed Load: the parser's complaint.
    virtual Text ParseErrorReason() const = 0;
    /// Relative to the document: the first name on the path is that of the root element.
    virtual std::shared_ptr<XmlElement> SelectSingleNode(TextView path) = 0;
};

class XmlLibrary {
  public:
    virtual ~XmlLibrary() = default;
    virtual bool FileExists(TextView path) = 0;
    virtual std::unique_ptr<XmlDocument> CreateDocument() = 0;
};

/// The explanations of one opening of the dialog.
class Explanations {
  public:
    Explanations(Session& session, XmlLibrary& xml) : session_(session), xml_(xml) {}

    /// Reads the file in `folder`. An absent file or another root element leaves the explanations empty in silence, a
    /// broken file after a box with the parser's reason.
    void XMLEinlesen(TextView folder);
    /// The text for the path of a box ("Module/Mod3"), line ends as CR LF: its explanation, or the message that there
    /// is none, or, with no file, the general message.
    Text ErlaueuterungAnzeigen(TextView strNode);
    /// Lets go of the document.
    void Release() { objErlaeuterungen_.reset(); }

  private:
    Session& session_;
    XmlLibrary& xml_;
    std::shared_ptr<XmlElement> objErlaeuterungen_;
};

}  // namespace zentlor
