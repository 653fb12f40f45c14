#pragma once

// The options dialog without its window: the state of the 45 boxes, the buttons' rules, and which explanation shows.

#include <array>

#include "core/checks/catalogue.h"
#include "core/options/explanations.h"

namespace zentlor {

/// Single controls of the dialog that carry a text.
enum class OptionsControl { lblErläuterungen, txtErläuterungen, cmdOK, cmdAbbrechen, cmdÜbernehmen };

/// The window of the dialog. A box stands for one check, on the tab of the check's group; its index there is the
/// catalogue's `box`.
class OptionsView {
  public:
    virtual ~OptionsView() = default;
    virtual void CentreOnScreen() = 0;
    virtual void SetTitle(TextView text) = 0;
    virtual void SetTabCaption(CheckGroup group, TextView text) = 0;
    virtual void SetAlleCaptions(CheckGroup group, TextView alleAn, TextView alleAus) = 0;
    virtual void SetText(OptionsControl control, TextView text) = 0;
    virtual void SetBoxCaption(CheckId id, TextView text) = 0;
    /// May or may not raise the box's Click: the dialog knows its boxes' values itself.
    virtual void SetBox(CheckId id, bool ticked) = 0;
    virtual void EnableÜbernehmen(bool enabled) = 0;
    /// Closes the window. The window calls Form_Unload when it has closed, by whatever way.
    virtual void Unload() = 0;
};

/// The path of a box below the root of the explanations: "Prozeduren/Proc4".
Text PathOfBox(CheckId id);

class frm_Optionen {
  public:
    /// `folder` holds the explanations file, and ends without a separator.
    frm_Optionen(Session& session, OptionsView& view, XmlLibrary& xml, TextView folder);

    void Form_Load();
    void Form_Unload();

    /// The box's value is now `ticked`. Enables "Übernehmen" if it was another one before.
    void chkOptionen_Click(CheckId id, bool ticked);
    void chkOptionen_GotFocus(CheckId id);
    void chkOptionen_MouseMove(CheckId id);
    void cmdAlleAn_Click(CheckGroup group);
    void cmdAlleAus_Click(CheckGroup group);
    void cmdOK_Click();
    void cmdAbbrechen_Click();
    void cmdÜbernehmen_Click();

    /// Copies the option record to the boxes.
    void OptionenAnzeigen();
    /// Writes all 45 boxes to the settings store.
    void OptionenSpeichern();
    /// Shows the explanation at a path below the root of the explanations.
    void ErlaueuterungAnzeigen(TextView strNode);

  private:
    void SetCaptions();
    void SetBox(CheckId id, bool ticked);
    void SetGroup(CheckGroup group, bool ticked);
    void Apply();

    Session& session_;
    OptionsView& view_;
    Explanations explanations_;
    Text folder_;
    std::array<bool, kCheckCount> boxes_{};
};

}  // namespace zentlor
