#include "studio/command_bars.h"

#include <QAction>
#include <QPointer>
#include <algorithm>

#include "core/utilities/failure_frame.h"
#include "studio/icons.h"
#include "studio/qtext.h"

namespace zentlor::studio {

// A menu entry, with the separator in front of it.
class QtCommandBar::Control : public CommandBarControl {
  public:
    explicit Control(QMenu& menu) : menu_(menu), action_(menu.addAction(QString())) {}
    ~Control() override { Remove(); }

    Text Caption() const override { return FromQString(Action().text()); }
    void SetCaption(TextView caption) override { Action().setText(ToQString(caption)); }
    // Every built-in picture is the add-in's own here: the studio has no others to offer.
    void SetFaceId(int) override { Action().setIcon(StrokeIcon(QStringLiteral("mark"))); }
    void SetBeginGroup(bool beginGroup) override {
        delete separator_;
        if (beginGroup) separator_ = menu_.insertSeparator(&Action());
    }
    void Delete() override {
        Action();
        Remove();
    }

    bool Deleted() const { return action_ == nullptr; }
    QAction& Action() const {
        if (action_ == nullptr) throw ObjectNotSet();
        return *action_;
    }

  private:
    // A click may be on the stack, so the entry leaves the menu now and the memory later.
    void Remove() {
        delete separator_;
        if (action_ == nullptr) return;
        menu_.removeAction(action_);
        action_->deleteLater();
        action_ = nullptr;
    }

    QMenu& menu_;
    QPointer<QAction> action_;
    QPointer<QAction> separator_;
};

namespace {

class ClickSource : public zentlor::CommandBarEvents {
  public:
    ClickSource(const QAction& action, std::function<void()> click)
        : connection_(QObject::connect(&action, &QAction::triggered, std::move(click))) {}
    ~ClickSource() override { QObject::disconnect(connection_); }

  private:
    QMetaObject::Connection connection_;
};

}  // namespace

std::vector<std::shared_ptr<CommandBarControl>> QtCommandBar::Controls() {
    std::erase_if(controls_, [](const auto& control) { return control->Deleted(); });
    return {controls_.begin(), controls_.end()};
}

std::shared_ptr<CommandBarControl> QtCommandBar::Add(int type, bool) {
    if (type != msoControlButton) throw InvalidCall();
    controls_.push_back(std::make_shared<Control>(menu_));
    return controls_.back();
}

CommandBar* CommandBarSet::Find(TextView name) {
    const auto found = bars_.find(Text(name));
    return found == bars_.end() ? nullptr : &found->second;
}

std::unique_ptr<CommandBarEvents> CommandBarSet::Events(const std::shared_ptr<CommandBarControl>& control,
                                                        std::function<void()> click) {
    if (!control) throw ObjectNotSet();
    return std::make_unique<ClickSource>(static_cast<QtCommandBar::Control&>(*control).Action(), std::move(click));
}

}  // namespace zentlor::studio
