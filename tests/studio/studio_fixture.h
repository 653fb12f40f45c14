#pragma once

// A whole studio with a settings file of its own, and a user who answers what comes up.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QMessageBox>
#include <QMouseEvent>
#include <QTemporaryDir>
#include <QTest>
#include <functional>

#include "studio/qtext.h"
#include "studio/studio.h"

namespace zentlor::studio {

/// For test output.
inline std::ostream& operator<<(std::ostream& out, const Word& word) {
    return out << static_cast<int>(word);
}

/// The pointer moves to a place of `widget`, which may lie outside of it.
inline void MovePointer(QWidget& widget, const QPoint& to) {
    QMouseEvent move(QEvent::MouseMove, QPointF(to), QPointF(widget.mapToGlobal(to)), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&widget, &move);
}

class StudioTest : public testing::Test {
  protected:
    StudioTest() {
        // The user looks for a dialog now and then, also while a test waits inside of one.
        QObject::connect(&user_, &QTimer::timeout, [this] { MeetDialog(); });
        user_.start(10);
        studio_ = std::make_unique<Studio>(SettingsPath());
        studio_->Start({});
    }

    std::string SettingsPath() const { return settingsFolder_.filePath(QStringLiteral("settings.ini")).toStdString(); }

    /// Ends the program and starts it again, with the same settings.
    void Restart() {
        studio_->Window().close();
        studio_.reset();
        studio_ = std::make_unique<Studio>(SettingsPath());
        studio_->Start({});
    }

    PaneWidget& Pane() { return *studio_->AddIn().Pane(); }
    MainWindow& Window() { return studio_->Window(); }
    Menus& Entries() { return studio_->Window().Menus(); }
    const ResultList& Hints() { return *studio_->AddIn().Results(); }

    /// Opens a path as the user does, and waits until all is told. False if nothing else is open than before.
    bool Open(const QString& path) {
        bool done = false;
        const auto connection = QObject::connect(&studio_->Opening(), &Opening::Done, [&done] { done = true; });
        const workspace::OpenedProject* before = studio_->Projects().Active();
        studio_->Opening().Open({path});
        EXPECT_TRUE(QTest::qWaitFor([&] { return done; }, 20000)) << path.toStdString();
        QObject::disconnect(connection);
        return studio_->Projects().Active() != before;
    }
    bool OpenExample() { return Open(QStringLiteral(ZENTLOR_SOURCE_DIR "/examples/kunden")); }

    /// A module of the test's own folder.
    QString WriteModule(const QString& name, const QByteArray& code) {
        QFile file(folder_.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("Attribute VB_Name = \"" + QFileInfo(name).baseName().toLatin1() + "\"\r\n" + code);
        return file.fileName();
    }

    /// Position of the buttons on the pane's toolbar.
    enum ToolbarButton { kRefresh = 1, kStop = 2, kExport = 4, kOptionen = 6, kInfo = 8, kHilfe = 9 };
    void Click(ToolbarButton button) { QTest::mouseClick(Pane().Button(button), Qt::LeftButton); }

    void PickLanguage(int position) {
        auto& box = dynamic_cast<QtLanguageBox&>(Pane().Sprache());
        box.setCurrentIndex(position - 1);
        Q_EMIT box.activated(position - 1);
    }

    /// Runs `body` at the `number`th yield point of the next run.
    void AtYield(int number, std::function<void()> body) {
        studio_->Events().afterEvents = [this, number, body = std::move(body), count = 0]() mutable {
            if (++count != number) return;
            const auto action = std::move(body);
            studio_->Events().afterEvents = nullptr;
            action();
        };
    }

    /// What the user does with the next dialog that is no message box.
    std::function<void(QDialog&)> inDialog;
    /// The answer to message boxes.
    QMessageBox::StandardButton answer = QMessageBox::Ok;
    /// The texts of the message boxes that came up, in order.
    QStringList boxes;

    QTemporaryDir folder_;
    /// Beside it: what is opened is watched, and a settings file in it would be a change.
    QTemporaryDir settingsFolder_;
    std::unique_ptr<Studio> studio_;

  private:
    void MeetDialog() {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr || !dialog->isVisible()) return;
        if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
            boxes << box->text();
            QAbstractButton* button = box->button(answer);
            (button != nullptr ? button : box->buttons().front())->click();
        } else if (inDialog) {
            std::exchange(inDialog, nullptr)(*dialog);
        } else {
            ADD_FAILURE() << "unexpected dialog: " << dialog->windowTitle().toStdString();
            dialog->close();
        }
    }

    QTimer user_;
};

}  // namespace zentlor::studio
