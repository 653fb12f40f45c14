#pragma once

// The per-user settings store: one small text file, addressed by application, section and key. A write leaves the old
// file or the new one, never a part of either; writes of two processes are merged key by key.

#include <map>
#include <optional>
#include <string>

#include "core/host/host.h"

namespace zentlor::workspace {

/// `$XDG_CONFIG_HOME/zentlor/settings.ini`, or below `~/.config` where the variable is not set.
std::string DefaultSettingsPath();

class SettingsFile : public SettingsStore {
  public:
    /// An absent file is an empty store; it is made at the first write. A file that cannot be read is told by
    /// Problem().
    explicit SettingsFile(std::string path);
    ~SettingsFile() override;
    SettingsFile(const SettingsFile&) = delete;
    SettingsFile& operator=(const SettingsFile&) = delete;

    Text GetSetting(TextView application, TextView section, TextView key) override;
    /// Takes effect at once for GetSetting, and in the file at the next Flush(). Never fails.
    void SaveSetting(TextView application, TextView section, TextView key, TextView value) override;

    /// Writes what was saved since the last time into the file as it stands now.
    void Flush();

    const std::string& Path() const { return path_; }
    /// Why the store could not be read or written, for the user: the system's reason. Nothing while all is well.
    const std::optional<std::string>& Problem() const { return problem_; }

  private:
    using Values = std::map<std::string, std::string>;
    Values Read();

    std::string path_;
    Values values_;   ///< "Application\Section\Key" to value, UTF-8
    Values pending_;  ///< saved, not yet written
    std::optional<std::string> problem_;
};

/// A store that lives in memory only.
class SettingsInMemory : public SettingsStore {
  public:
    Text GetSetting(TextView application, TextView section, TextView key) override;
    void SaveSetting(TextView application, TextView section, TextView key, TextView value) override;

  private:
    std::map<std::string, std::string> values_;
};

}  // namespace zentlor::workspace
