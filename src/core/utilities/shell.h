#pragma once

#include "core/analysis/session.h"

namespace zentlor {

/// How what is opened shows.
enum ShowMode { SW_SHOWNORMAL = 1, SW_SHOWMAXIMIZED = 3 };

/// The platform's way to applications and to the help viewer.
class Shell {
  public:
    virtual ~Shell() = default;
    /// Opens a document, a program or an address with its application, the desktop being its owner. A value above 32 on
    /// success; else a code: 2 file not found, 31 no application.
    virtual int ShellExecuteA(TextView verb, TextView file, TextView parameters, TextView folder, ShowMode show) = 0;
    virtual Text GetSystemDirectoryA() = 0;
    /// Opens the help viewer, without an owner, for the help at `file`.
    virtual void HtmlHelpA(TextView file, int command, int data) = 0;
};

/// The help beside the component: a folder of that name which holds the pages, index.html the first of them.
inline constexpr TextView kHelpFile = u"zentlor.chm";

/// Shows the help at `strDatei`; `lngThema` 0 is its first page. A missing help is the viewer's business.
void HilfeAnzeigen(Session& session, Shell& shell, TextView strDatei, int lngThema);

}  // namespace zentlor
