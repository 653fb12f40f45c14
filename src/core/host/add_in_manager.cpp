// Where the registration record lies in the store, and when the add-in is connected and disconnected.

#include "core/host/add_in_manager.h"

#include <utility>

namespace zentlor {

namespace {

constexpr TextView kDisplayName = u"FriendlyName";
constexpr TextView kDescription = u"Description";
constexpr TextView kLoadBehaviour = u"LoadBehavior";

Text AddInKey() {
    return Text(kRegistration.registryTarget) + u"\\Addins\\" + Text(kRegistration.addInClass);
}

}  // namespace

AddInManager::AddInManager(Registry& registry, EditorUi& editor, AddinInstance& addIn)
    : registry_(registry), editor_(editor), addIn_(addIn), instance_{Text(kRegistration.addInClass)} {}

AddInManager::~AddInManager() {
    if (loaded_) addIn_.AddinInstance_OnDisconnection();
}

void AddInManager::Register() {
    const Text key = AddInKey();
    registry_.WriteValue(key, kDisplayName, kRegistration.displayName);
    registry_.WriteValue(key, kDescription, kRegistration.description);
    if (registry_.ReadValue(key, kLoadBehaviour)) return;
    registry_.WriteValue(key, kLoadBehaviour, ToText(kRegistration.loadBehaviour));
}

void AddInManager::Unregister() {
    registry_.DeleteKey(AddInKey());
}

bool AddInManager::LoadsAtStart() {
    return registry_.ReadValue(AddInKey(), kLoadBehaviour) == ToText(kLoadAtStart);
}

void AddInManager::SetLoadsAtStart(bool loads) {
    registry_.WriteValue(AddInKey(), kLoadBehaviour, ToText(loads ? kLoadAtStart : kLoadOnDemand));
}

void AddInManager::Start() {
    if (LoadsAtStart()) Load();
}

void AddInManager::Load() {
    unloadWaits_ = false;
    if (loaded_) return;
    loaded_ = true;
    addIn_.AddinInstance_OnConnection(editor_, instance_);
}

void AddInManager::Unload() {
    if (!loaded_) return;
    if (!addIn_.Busy()) {
        unloadWaits_ = false;
        loaded_ = false;
        addIn_.AddinInstance_OnDisconnection();
        return;
    }
    addIn_.Stop();
    if (unloadWaits_) return;
    unloadWaits_ = true;
    editor_.WhenIdle([this] {
        if (!std::exchange(unloadWaits_, false)) return;
        Unload();
    });
}

}  // namespace zentlor
