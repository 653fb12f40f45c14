#pragma once

#include "core/options/explanations.h"

namespace zentlor::workspace {

/// XML documents read by libxml2. A document is data from a file and nothing else: no network, no external entities or
/// grammars whatever SetResolveExternals says, and the parser's limits against growing entities stay on. A document
/// that declares a grammar inside of itself must meet it if SetValidateOnParse was set.
class LibxmlLibrary : public XmlLibrary {
  public:
    bool FileExists(TextView path) override;
    std::unique_ptr<XmlDocument> CreateDocument() override;
};

}  // namespace zentlor::workspace
