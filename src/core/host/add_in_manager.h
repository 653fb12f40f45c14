#pragma once

// The add-in manager: the registration record, and the loading of the add-in by its load behaviour or on demand.

#include <optional>

#include "core/host/add_in.h"

namespace zentlor {

/// The registration record of the add-in.
struct AddInRegistration {
    TextView registryTarget;
    TextView displayName;
    TextView description;
    int loadBehaviour;
    TextView addInClass;
    TextView paneClass;
};

/// Load behaviour: the add-in is loaded at the editor's start, or on demand only.
inline constexpr int kLoadAtStart = 1;
inline constexpr int kLoadOnDemand = 0;

inline constexpr AddInRegistration kRegistration = {
    u"HKEY_CURRENT_USER\\Software\\Microsoft\\VBA\\VBE\\6.0",
    u"Zentlor",
    u"Add-In zur Überprüfung des VBA-Codes",
    kLoadAtStart,
    u"Zentlor.dsrZentlor",
    u"Zentlor.docAddIn",
};

/// The per-user store that stands for the registry: named text values below keys.
class Registry {
  public:
    virtual ~Registry() = default;
    virtual std::optional<Text> ReadValue(TextView key, TextView name) = 0;
    virtual void WriteValue(TextView key, TextView name, TextView value) = 0;
    virtual void DeleteKey(TextView key) = 0;
};

/// Manages one add-in for one editor. `addIn`, `editor` and `registry` outlive the manager.
class AddInManager {
  public:
    AddInManager(Registry& registry, EditorUi& editor, AddinInstance& addIn);
    AddInManager(const AddInManager&) = delete;
    AddInManager& operator=(const AddInManager&) = delete;
    /// Unloads the add-in. Not while it is busy.
    ~AddInManager();

    /// Writes the registration record; a load behaviour that is stored already stays.
    void Register();
    void Unregister();
    /// Whether the stored load behaviour has the add-in loaded at the editor's start.
    bool LoadsAtStart();
    void SetLoadsAtStart(bool loads);

    /// At the editor's start: loads the add-in if it is registered so.
    void Start();
    /// Connects the add-in; nothing happens if it is connected. Takes back an unloading that still waits.
    void Load();
    /// Disconnects the add-in. While its code is on the stack, as during a run, it is told to stop, and the
    /// disconnection follows when it has ended.
    void Unload();
    bool Loaded() const { return loaded_; }

  private:
    Registry& registry_;
    EditorUi& editor_;
    AddinInstance& addIn_;
    AddInInstance instance_;
    bool loaded_ = false;
    bool unloadWaits_ = false;
};

}  // namespace zentlor
