// The reading of the explanations file, and the choice of the text for a box.

#include "core/options/explanations.h"

#include "core/utilities/paths.h"

namespace zentlor {

namespace {

constexpr TextView kModule = u"frm_Optionen";

}  // namespace

void Explanations::XMLEinlesen(TextView folder) {
    Frame(session_, {kModule, u"XMLEinlesen"}, [&] {
        const Text path = PathIn(folder, kExplanationsFile);
        if (!xml_.FileExists(path)) return;
        const std::unique_ptr<XmlDocument> document = xml_.CreateDocument();
        document->SetAsync(false);
        document->SetPreserveWhiteSpace(false);
        document->SetValidateOnParse(true);
        document->SetResolveExternals(false);
        if (document->Load(path)) {
            objErlaeuterungen_ = document->SelectSingleNode(kExplanationsRoot);
        } else {
            session_.host().boxes.Show(document->ParseErrorReason(), BoxIcon::Exclamation);
        }
    });
}

Text Explanations::ErlaueuterungAnzeigen(TextView strNode) {
    if (!objErlaeuterungen_) return session_.GetResourceString(125);
    const std::shared_ptr<XmlElement> node = objErlaeuterungen_->SelectSingleNode(strNode);
    const Text text = node ? node->TextContent() : session_.GetResourceString(242);
    return ReplaceAll(text, u"\n", u"\r\n");
}

}  // namespace zentlor
