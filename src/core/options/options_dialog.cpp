// The options dialog: the record's flags become boxes, the boxes become settings, and the record is read back from the
// settings, so that it always shows what the store holds.

#include "core/options/options_dialog.h"

namespace zentlor {

namespace {

constexpr TextView kModule = u"frm_Optionen";
constexpr std::array kGroups = {CheckGroup::Module, CheckGroup::Procedures, CheckGroup::Commands};

// The names that the three tabs give to their handlers and to their explanations.
struct GroupNames {
    int caption;
    TextView path;
    TextView click, gotFocus, mouseMove, alleAn, alleAus;
};

constexpr std::array kNames = {
    GroupNames{119, u"Module/Mod", u"chkModOptionen_Click", u"chkModOptionen_GotFocus", u"chkModOptionen_MouseMove",
               u"cmdModulAlleAn_Click", u"cmdModulAlleAus_Click"},
    GroupNames{120, u"Prozeduren/Proc", u"chkProcOptionen_Click", u"chkProcOptionen_GotFocus",
               u"chkProcOptionen_MouseMove", u"cmdProzedurAlleAn_Click", u"cmdProzedurAlleAus_Click"},
    GroupNames{121, u"Befehle/Cmd", u"chkCmdOptionen_Click", u"chkCmdOptionen_GotFocus", u"chkCmdOptionen_MouseMove",
               u"cmdBefehleAlleAn_Click", u"cmdBefehleAlleAus_Click"}};

const GroupNames& NamesOf(CheckGroup group) {
    return kNames[static_cast<std::size_t>(group)];
}
const GroupNames& NamesOf(CheckId id) {
    return NamesOf(InfoOf(id).group);
}

// Every box, in the order of the tabs and of the boxes on them.
template <class Body>
void ForEachBox(Body body) {
    for (const CheckGroup group : kGroups) {
        for (int box = 1; box <= CountOf(group); ++box) body(CheckOfBox(group, box));
    }
}

}  // namespace

Text PathOfBox(CheckId id) {
    return Text(NamesOf(id).path) + ToText(InfoOf(id).box);
}

frm_Optionen::frm_Optionen(Session& session, OptionsView& view, XmlLibrary& xml, TextView folder)
    : session_(session), view_(view), explanations_(session, xml), folder_(folder) {}

void frm_Optionen::Form_Load() {
    Frame(session_, {kModule, u"Form_Load"}, [&] {
        view_.CentreOnScreen();
        OptionenAnzeigen();
        explanations_.XMLEinlesen(folder_);
        SetCaptions();
        // Behind the boxes: each box that changed has enabled the button.
        view_.EnableÜbernehmen(false);
        ForEachBox([&](CheckId id) { view_.SetBoxCaption(id, session_.GetResourceString(InfoOf(id).label)); });
    });
}

void frm_Optionen::SetCaptions() {
    view_.SetTitle(session_.GetResourceString(118));
    for (const CheckGroup group : kGroups) {
        view_.SetTabCaption(group, session_.GetResourceString(NamesOf(group).caption));
    }
    for (const CheckGroup group : kGroups) {
        view_.SetAlleCaptions(group, session_.GetResourceString(122), session_.GetResourceString(123));
    }
    view_.SetText(OptionsControl::lblErläuterungen, session_.GetResourceString(124));
    view_.SetText(OptionsControl::txtErläuterungen, session_.GetResourceString(125));
    view_.SetText(OptionsControl::cmdOK, session_.GetResourceString(126));
    view_.SetText(OptionsControl::cmdAbbrechen, session_.GetResourceString(127));
    view_.SetText(OptionsControl::cmdÜbernehmen, session_.GetResourceString(128));
}

void frm_Optionen::Form_Unload() {
    Frame(session_, {kModule, u"Form_Unload"}, [&] { explanations_.Release(); });
}

void frm_Optionen::chkOptionen_Click(CheckId id, bool ticked) {
    Frame(session_, {kModule, NamesOf(id).click}, [&] {
        if (boxes_[IndexOf(id)] == ticked) return;
        boxes_[IndexOf(id)] = ticked;
        view_.EnableÜbernehmen(true);
    });
}

// The dialog's own change of a box. The box's value is known before the window hears of it, so that a Click that the
// window raises for it finds nothing changed.
void frm_Optionen::SetBox(CheckId id, bool ticked) {
    if (boxes_[IndexOf(id)] == ticked) return;
    chkOptionen_Click(id, ticked);
    view_.SetBox(id, ticked);
}

void frm_Optionen::SetGroup(CheckGroup group, bool ticked) {
    for (int box = 1; box <= CountOf(group); ++box) SetBox(CheckOfBox(group, box), ticked);
}

void frm_Optionen::chkOptionen_GotFocus(CheckId id) {
    Frame(session_, {kModule, NamesOf(id).gotFocus}, [&] { ErlaueuterungAnzeigen(PathOfBox(id)); });
}

void frm_Optionen::chkOptionen_MouseMove(CheckId id) {
    Frame(session_, {kModule, NamesOf(id).mouseMove}, [&] { ErlaueuterungAnzeigen(PathOfBox(id)); });
}

void frm_Optionen::ErlaueuterungAnzeigen(TextView strNode) {
    Frame(session_, {kModule, u"ErlaueuterungAnzeigen"},
          [&] { view_.SetText(OptionsControl::txtErläuterungen, explanations_.ErlaueuterungAnzeigen(strNode)); });
}

void frm_Optionen::cmdAlleAn_Click(CheckGroup group) {
    Frame(session_, {kModule, NamesOf(group).alleAn}, [&] { SetGroup(group, true); });
}

void frm_Optionen::cmdAlleAus_Click(CheckGroup group) {
    Frame(session_, {kModule, NamesOf(group).alleAus}, [&] { SetGroup(group, false); });
}

void frm_Optionen::Apply() {
    OptionenSpeichern();
    OptionenLesen(session_.host().settings, session_, session_.udtOptionen);
}

void frm_Optionen::cmdOK_Click() {
    Frame(session_, {kModule, u"cmdOK_Click"}, [&] {
        Apply();
        view_.Unload();
    });
}

void frm_Optionen::cmdAbbrechen_Click() {
    Frame(session_, {kModule, u"cmdAbbrechen_Click"}, [&] { view_.Unload(); });
}

void frm_Optionen::cmdÜbernehmen_Click() {
    Frame(session_, {kModule, u"cmdÜbernehmen_Click"}, [&] {
        Apply();
        view_.EnableÜbernehmen(false);
    });
}

void frm_Optionen::OptionenAnzeigen() {
    Frame(session_, {kModule, u"OptionenAnzeigen"},
          [&] { ForEachBox([&](CheckId id) { SetBox(id, session_.udtOptionen[id]); }); });
}

void frm_Optionen::OptionenSpeichern() {
    Frame(session_, {kModule, u"OptionenSpeichern"}, [&] {
        ForEachBox([&](CheckId id) {
            OptionSpeichern(session_.host().settings, InfoOf(id).key, boxes_[IndexOf(id)] ? u"1" : u"0");
        });
    });
}

}  // namespace zentlor
