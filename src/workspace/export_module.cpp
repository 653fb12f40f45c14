#include "workspace/export_module.h"

#include <algorithm>
#include <array>
#include <limits>

#include "core/utilities/encoding.h"

namespace zentlor::workspace {

namespace {

bool HasAttributes(TextView header) {
    return header.find(u"Attribute VB_") != TextView::npos;
}

Text Attribute(TextView name, bool value) {
    return u"Attribute " + Text(name) + u" = " + (value ? u"True" : u"False") + u"\n";
}

// The block in front of the attributes that tells the editor what the file is.
Text VersionBlock(const VBComponent& component) {
    if (component.Type() == vbext_ct_MSForm) {
        constexpr TextView kFormClass = u"{C62A69F0-16DC-11CE-9E98-00AA00574A4F}";
        return u"VERSION 5.00\nBegin " + Text(kFormClass) + u" " + component.Name() + u" \n   Caption         =   \"" +
               component.Name() + u"\"\nEnd\n";
    }
    return u"VERSION 1.0 CLASS\nBEGIN\n  MultiUse = -1  'True\nEND\n";
}

// A header for a component that came without one.
Text MadeAttributes(const VBComponent& component) {
    Text header = u"Attribute VB_Name = \"" + component.Name() + u"\"\n";
    if (component.Type() == vbext_ct_StdModule) return header;
    const bool shown = component.Type() == vbext_ct_Document;
    header += Attribute(u"VB_GlobalNameSpace", false) + Attribute(u"VB_Creatable", false);
    header += Attribute(u"VB_PredeclaredId", shown || component.Type() == vbext_ct_MSForm);
    return header + Attribute(u"VB_Exposed", shown);
}

using TakeLine = std::function<void(TextView line)>;

void TakeLines(TextView text, const TakeLine& take) {
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find(u'\n', begin), text.size());
        take(text.substr(begin, end - begin));
        begin = end + 1;
    }
}

}  // namespace

void ForEachExportLine(const OpenedProject& project, const VBComponent& component, const TakeLine& take) {
    const ModuleOrigin& origin = project.OriginOf(component);
    const bool versioned = origin.header.starts_with(u"VERSION");
    if (!versioned && component.Type() != vbext_ct_StdModule) TakeLines(VersionBlock(component), take);
    TakeLines(origin.header, take);
    if (!HasAttributes(origin.header)) TakeLines(MadeAttributes(component), take);

    const CodeModule& cm = component.CodeModule();
    auto hidden = origin.innerAttributes.begin();
    const auto takeHidden = [&](int linesBefore) {
        for (; hidden != origin.innerAttributes.end() && static_cast<int>(hidden->linesBefore) <= linesBefore; ++hidden)
            TakeLines(hidden->text, take);
    };
    for (int line = 1; line <= cm.CountOfLines(); ++line) {
        takeHidden(line - 1);
        take(cm.Lines(line));
    }
    takeHidden(std::numeric_limits<int>::max());
}

std::string PlainFileName(TextView name) {
    constexpr TextView kForbidden = u"/\\:*?\"<>|";
    Text plain(name);
    std::replace_if(
        plain.begin(), plain.end(),
        [&](char16_t c) { return c < 0x20 || c == 0x7F || kForbidden.find(c) != TextView::npos; }, u'_');
    if (plain.empty() || plain.starts_with(u'.')) plain.insert(plain.begin(), u'_');
    constexpr std::array<TextView, 4> kDevices = {u"con", u"prn", u"aux", u"nul"};
    const bool device =
        std::any_of(kDevices.begin(), kDevices.end(), [&](TextView word) { return EqualIgnoringCase(plain, word); });
    if (device) plain.insert(plain.begin(), u'_');
    constexpr std::size_t kLongest = 80;
    return ToUtf8(TextView(plain).substr(0, kLongest));
}

std::string ExportFileName(const VBComponent& component) {
    const std::string stem = PlainFileName(component.Name());
    switch (component.Type()) {
        case vbext_ct_StdModule:
            return stem + ".bas";
        case vbext_ct_MSForm:
            return stem + ".frm";
        default:
            return stem + ".cls";
    }
}

}  // namespace zentlor::workspace
