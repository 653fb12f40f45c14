#include "workspace/settings_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "core/utilities/encoding.h"
#include "core/utilities/failure_frame.h"
#include "workspace/atomic_file.h"

namespace zentlor::workspace {

namespace {

namespace fs = std::filesystem;

std::string FullKey(TextView application, TextView section, TextView key) {
    return ToUtf8(application) + "\\" + ToUtf8(section) + "\\" + ToUtf8(key);
}

// One line a value. A line end or a backslash inside of a value is written as \n, \r or \\.
std::string Escape(const std::string& value) {
    std::string escaped;
    for (const char c : value) {
        if (c == '\n') {
            escaped += "\\n";
        } else if (c == '\r') {
            escaped += "\\r";
        } else {
            if (c == '\\') escaped += '\\';
            escaped += c;
        }
    }
    return escaped;
}

std::string Unescape(const std::string& line) {
    std::string value;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] != '\\' || i + 1 == line.size()) {
            value += line[i];
            continue;
        }
        const char c = line[++i];
        value += c == 'n' ? '\n' : c == 'r' ? '\r' : c;
    }
    return value;
}

std::string SystemReason() {
    return std::strerror(errno);
}

// Holds an exclusive lock beside the file, so that two processes do not write between each other's read and rename.
class FileLock {
  public:
    explicit FileLock(const std::string& path) : descriptor_(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600)) {
        if (descriptor_ >= 0) flock(descriptor_, LOCK_EX);
    }
    ~FileLock() {
        if (descriptor_ >= 0) close(descriptor_);
    }
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;
    bool Held() const { return descriptor_ >= 0; }

  private:
    int descriptor_;
};

}  // namespace

std::string DefaultSettingsPath() {
    const char* config = std::getenv("XDG_CONFIG_HOME");
    const char* home = std::getenv("HOME");
    const bool absolute = config != nullptr && config[0] == '/';
    const fs::path base = absolute ? fs::path(config) : fs::path(home != nullptr ? home : ".") / ".config";
    return (base / "zentlor" / "settings.ini").string();
}

SettingsFile::SettingsFile(std::string path) : path_(std::move(path)) {
    values_ = Read();
}

SettingsFile::~SettingsFile() {
    Flush();
}

SettingsFile::Values SettingsFile::Read() {
    Values values;
    errno = 0;
    std::ifstream in(path_, std::ios::binary);
    if (!in && errno == ENOENT) return values;
    std::string section;
    for (std::string line; std::getline(in, line);) {
        if (line.ends_with('\r')) line.pop_back();  // saved by an editor of another system
        const auto equals = line.find('=');
        if (line.starts_with('[') && line.ends_with(']')) {
            section = line.substr(1, line.size() - 2);
        } else if (equals != std::string::npos) {
            values[section + "\\" + line.substr(0, equals)] = Unescape(line.substr(equals + 1));
        }
    }
    if (!in.eof()) problem_ = SystemReason();
    return values;
}

Text SettingsFile::GetSetting(TextView application, TextView section, TextView key) {
    const auto found = values_.find(FullKey(application, section, key));
    return found == values_.end() ? Text() : FromUtf8(found->second);
}

void SettingsFile::SaveSetting(TextView application, TextView section, TextView key, TextView value) {
    const std::string fullKey = FullKey(application, section, key);
    values_[fullKey] = pending_[fullKey] = ToUtf8(value);
}

void SettingsFile::Flush() {
    if (pending_.empty()) return;
    std::error_code error;
    const fs::path folder = fs::path(path_).parent_path();
    if (!folder.empty()) fs::create_directories(folder, error);
    const FileLock lock(path_ + ".lock");
    Values merged = lock.Held() ? Read() : Values();
    for (const auto& [key, value] : pending_) merged[key] = value;
    pending_.clear();

    std::string bytes;
    std::string section;
    for (const auto& [key, value] : merged) {
        const auto separator = key.rfind('\\');
        if (key.substr(0, separator) != section) {
            section = key.substr(0, separator);
            bytes += "[" + section + "]\n";
        }
        bytes += key.substr(separator + 1) + "=" + Escape(value) + "\n";
    }
    if (!lock.Held() && !problem_) problem_ = error ? error.message() : SystemReason();
    if (problem_) return;
    try {
        WriteFileAtomically(path_, bytes);
        values_ = std::move(merged);
    } catch (const RuntimeError& failure) {
        problem_ = failure.what();
    }
}

Text SettingsInMemory::GetSetting(TextView application, TextView section, TextView key) {
    const auto found = values_.find(FullKey(application, section, key));
    return found == values_.end() ? Text() : FromUtf8(found->second);
}

void SettingsInMemory::SaveSetting(TextView application, TextView section, TextView key, TextView value) {
    values_[FullKey(application, section, key)] = ToUtf8(value);
}

}  // namespace zentlor::workspace
