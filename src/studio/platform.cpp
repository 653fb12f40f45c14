#include "studio/platform.h"

#include <QApplication>
#include <QMessageBox>
#include <QThread>
#include <ctime>
#include <utility>

#include "studio/qtext.h"

namespace zentlor::studio {

namespace {

constexpr int kIdleMilliseconds = 15;

QMessageBox::Icon IconOf(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::Critical:
            return QMessageBox::Critical;
        case BoxIcon::Exclamation:
            return QMessageBox::Warning;
        case BoxIcon::None:
            break;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

void QtEventPump::DoEvents() {
    ++depth_;
    QCoreApplication::processEvents();
    --depth_;
    if (afterEvents) afterEvents();
}

std::int64_t QtClock::Now() {
    return static_cast<std::int64_t>(std::time(nullptr));
}

void QtMessageBoxes::Show(TextView text, BoxIcon icon, TextView title) {
    const QString caption = title.empty() ? kDefaultTitle : ToQString(title);
    QString plain = ToQString(text);
    plain.remove(u'\r');
    QMessageBox box(IconOf(icon), caption, plain, QMessageBox::Ok, QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    box.exec();
}

IdleQueue::IdleQueue(const QtEventPump& events) : events_(events) {
    timer_.setInterval(kIdleMilliseconds);
    connect(&timer_, &QTimer::timeout, this, [this] { Try(); });
}

void IdleQueue::Add(std::function<void()> action) {
    actions_.push_back(std::move(action));
    timer_.start();
}

void IdleQueue::Try() {
    const bool outermost = QThread::currentThread()->loopLevel() <= 1;
    if (!outermost || events_.Pumping() || QApplication::activeModalWidget() != nullptr) return;
    timer_.stop();
    for (const auto& action : std::exchange(actions_, {})) action();
}

}  // namespace zentlor::studio
