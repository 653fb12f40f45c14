#pragma once

// The about box without its window.

#include "core/utilities/hyperlink.h"

namespace zentlor {

inline constexpr TextView kAboutTitle = u"Info";
inline constexpr TextView kProductName = u"Zentlor";

/// "Version " and the component's version, as "Version 1.45.58".
Text VersionLine();
/// A value of the build.
TextView CopyrightLine();

/// The window's controls whose content is not fixed.
class AboutView {
  public:
    virtual ~AboutView() = default;
    virtual void SetVersion(TextView text) = 0;       ///< lblVersion
    virtual void SetBeschreibung(TextView text) = 0;  ///< lblBeschreibung
    virtual LinkBox& txtHyperlink() = 0;
    virtual int BackColor() const = 0;
    /// Closes the window.
    virtual void Unload() = 0;
};

class frm_About {
  public:
    frm_About(Session& session, AboutView& view, Shell& shell) : session_(session), view_(view), shell_(shell) {}

    void Form_Load();
    void cmdOK_Click();
    void txtHyperlink_Click();
    void txtHyperlink_MouseMove(float x, float y);

  private:
    Session& session_;
    AboutView& view_;
    Shell& shell_;
};

}  // namespace zentlor
