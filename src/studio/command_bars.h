#pragma once

// The editor's command bars by their literal names, each behind one menu of the studio. What an add-in puts there
// stands behind the studio's own entries.

#include <QMenu>
#include <map>

#include "core/host/editor_ui.h"

namespace zentlor::studio {

class QtCommandBar : public CommandBar {
  public:
    /// `menu` outlives the bar and its controls.
    explicit QtCommandBar(QMenu& menu) : menu_(menu) {}

    std::vector<std::shared_ptr<CommandBarControl>> Controls() override;
    std::shared_ptr<CommandBarControl> Add(int type, bool temporary) override;

    class Control;

  private:
    QMenu& menu_;
    std::vector<std::shared_ptr<Control>> controls_;
};

class CommandBarSet {
  public:
    void Add(TextView name, QMenu& menu) { bars_.emplace(Text(name), menu); }
    /// The bar of that name, or nullptr.
    CommandBar* Find(TextView name);
    /// Throws for no control and for one that was deleted.
    static std::unique_ptr<CommandBarEvents> Events(const std::shared_ptr<CommandBarControl>& control,
                                                    std::function<void()> click);

  private:
    std::map<Text, QtCommandBar> bars_;
};

}  // namespace zentlor::studio
