#include "studio/settings.h"

#include "core/options/option_store.h"
#include "studio/qtext.h"

namespace zentlor::studio {

namespace {

constexpr TextView kStudio = u"Zentlor-Studio";
constexpr TextView kWindows = u"Windows";
constexpr TextView kRecent = u"Recent";
constexpr TextView kEditor = u"Editor";
constexpr TextView kRequireDeclarationKey = u"RequireDeclaration";
constexpr TextView kRegistryRoot = u"Registry";
constexpr int kMostRecentPaths = 10;
constexpr int kFlushMilliseconds = 300;

}  // namespace

StudioSettings::StudioSettings(std::string path) : file_(std::move(path)) {
    flush_.setSingleShot(true);
    flush_.setInterval(kFlushMilliseconds);
    connect(&flush_, &QTimer::timeout, this, [this] { Flush(); });
}

Text StudioSettings::GetSetting(TextView application, TextView section, TextView key) {
    return file_.GetSetting(application, section, key);
}

void StudioSettings::SaveSetting(TextView application, TextView section, TextView key, TextView value) {
    file_.SaveSetting(application, section, key, value);
    flush_.start();
}

// The file knows no absent values: an empty one counts as absent, here as in the settings.
std::optional<Text> StudioSettings::ReadValue(TextView key, TextView name) {
    Text value = GetSetting(kRegistryRoot, key, name);
    if (value.empty()) return std::nullopt;
    return value;
}

void StudioSettings::WriteValue(TextView key, TextView name, TextView value) {
    SaveSetting(kRegistryRoot, key, name, value);
}

void StudioSettings::DeleteKey(TextView key) {
    for (const TextView name : {u"FriendlyName", u"Description", u"LoadBehavior"}) WriteValue(key, name, {});
}

int StudioSettings::Language() {
    return GetSetting(kApplication, kSection, kSpracheKey) == u"2" ? 2 : 1;
}

Text StudioSettings::RequireDeclaration() {
    return GetSetting(kStudio, kEditor, kRequireDeclarationKey) == u"0" ? u"0" : u"1";
}

void StudioSettings::SetRequireDeclaration(bool required) {
    SaveSetting(kStudio, kEditor, kRequireDeclarationKey, required ? u"1" : u"0");
}

QByteArray StudioSettings::State(TextView name) {
    return QByteArray::fromBase64(ToQString(GetSetting(kStudio, kWindows, name)).toLatin1());
}

void StudioSettings::SetState(TextView name, const QByteArray& state) {
    SaveSetting(kStudio, kWindows, name, FromQString(QString::fromLatin1(state.toBase64())));
}

QStringList StudioSettings::RecentPaths() {
    QStringList paths;
    for (int i = 1; i <= kMostRecentPaths; ++i) {
        const Text path = GetSetting(kStudio, kRecent, zentlor::ToText(i));
        if (!path.empty()) paths << ToQString(path);
    }
    return paths;
}

void StudioSettings::AddRecentPath(const QString& path) {
    QStringList paths = RecentPaths();
    paths.removeAll(path);
    paths.prepend(path);
    for (int i = 1; i <= std::min<int>(kMostRecentPaths, static_cast<int>(paths.size())); ++i) {
        SaveSetting(kStudio, kRecent, zentlor::ToText(i), FromQString(paths[i - 1]));
    }
}

void StudioSettings::ClearRecentPaths() {
    for (int i = 1; i <= kMostRecentPaths; ++i) SaveSetting(kStudio, kRecent, zentlor::ToText(i), {});
}

}  // namespace zentlor::studio
