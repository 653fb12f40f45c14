#pragma once

// The editor's own dialogs: its options, the add-in manager, and what is known of a project.

#include "core/host/add_in_manager.h"
#include "studio/settings.h"
#include "studio/words.h"
#include "workspace/workspace.h"

class QWidget;

namespace zentlor::studio {

/// The editor's options.
void ShowEditorOptions(const Words& words, StudioSettings& settings, QWidget* parent);

/// Loads and unloads the add-in, and sets its load behaviour.
void ShowAddInManager(const Words& words, AddInManager& manager, QWidget* parent);

void ShowReferences(const Words& words, const workspace::OpenedProject& opened, QWidget* parent);
void ShowProperties(const Words& words, const workspace::OpenedProject& opened, QWidget* parent);

}  // namespace zentlor::studio
