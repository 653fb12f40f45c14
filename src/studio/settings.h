#pragma once

// The per-user store of the program: the add-in's settings, what stands for the registry, and the studio's own window
// state. Everything lies in one file, which is written shortly after the last change.

#include <QByteArray>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include "core/host/add_in_manager.h"
#include "workspace/settings_file.h"

namespace zentlor::studio {

class StudioSettings : public QObject, public SettingsStore, public Registry {
  public:
    explicit StudioSettings(std::string path);

    Text GetSetting(TextView application, TextView section, TextView key) override;
    void SaveSetting(TextView application, TextView section, TextView key, TextView value) override;

    std::optional<Text> ReadValue(TextView key, TextView name) override;
    void WriteValue(TextView key, TextView name, TextView value) override;
    void DeleteKey(TextView key) override;

    /// The stored interface language: 1 German, 2 English.
    int Language();
    /// The editor's setting "Variablendeklaration erforderlich": "1" or "0".
    Text RequireDeclaration();
    void SetRequireDeclaration(bool required);
    /// State of the studio's windows, under a name.
    QByteArray State(TextView name);
    void SetState(TextView name, const QByteArray& state);
    /// Paths that were opened, the last one first.
    QStringList RecentPaths();
    void AddRecentPath(const QString& path);
    void ClearRecentPaths();

    void Flush() { file_.Flush(); }
    const workspace::SettingsFile& File() const { return file_; }

  private:
    workspace::SettingsFile file_;
    QTimer flush_;
};

}  // namespace zentlor::studio
