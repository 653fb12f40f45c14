// How a file gets its new content in one step: a temporary file beside it takes the bytes, and then its name.

#include "workspace/atomic_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <string>
#include <utility>

#include "core/utilities/failure_frame.h"

namespace zentlor::workspace {

namespace {

struct Sentence {
    int number;
    const char* text;
};

Sentence SentenceOf(int code) {
    switch (code) {
        case ENOENT:
        case ENOTDIR:
            return {76, "Path not found"};
        case EACCES:
        case EPERM:
        case EROFS:
            return {70, "Permission denied"};
        case ENOSPC:
        case EDQUOT:
            return {61, "Disk full"};
        case EISDIR:
        case ENAMETOOLONG:
        case ELOOP:
        case ETXTBSY:
        case EBUSY:
        case EINVAL:
            return {75, "Path/File access error"};
        default:
            return {57, "Device I/O error"};
    }
}

[[noreturn]] void Fail(const std::string& path, int code) {
    const Sentence sentence = SentenceOf(code);
    throw RuntimeError(sentence.number, std::string(sentence.text) + ": " + path);
}

// A file that is open for writing; what it is not told to keep under its name disappears again.
class OpenFile {
  public:
    OpenFile(const std::string& shownPath, int descriptor) : shownPath_(shownPath), descriptor_(descriptor) {
        if (descriptor < 0) Fail(shownPath_, errno);
    }
    ~OpenFile() {
        if (descriptor_ >= 0) ::close(descriptor_);
        if (!temporaryPath_.empty()) ::unlink(temporaryPath_.c_str());
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    void RemoveUnlessRenamed(const std::string& temporaryPath) { temporaryPath_ = temporaryPath; }

    void Write(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t written = ::write(descriptor_, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) Fail(shownPath_, errno);
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
    }

    void TakeOver(const struct stat& old) {
        // The owner first, as its change clears bits of the mode. Only the superuser may give a file away; without that
        // the new file is the writer's.
        if (::fchown(descriptor_, old.st_uid, old.st_gid) != 0) errno = 0;
        if (::fchmod(descriptor_, old.st_mode & 07777) != 0) Fail(shownPath_, errno);
    }
    void SetMode(mode_t mode) {
        if (::fchmod(descriptor_, mode) != 0) Fail(shownPath_, errno);
    }

    void Sync() {
        if (::fsync(descriptor_) != 0) Fail(shownPath_, errno);
    }
    void Close() {
        if (::close(std::exchange(descriptor_, -1)) != 0) Fail(shownPath_, errno);
    }
    void RenameTo(const std::string& path) {
        if (::rename(temporaryPath_.c_str(), path.c_str()) != 0) Fail(shownPath_, errno);
        temporaryPath_.clear();
    }

  private:
    const std::string& shownPath_;
    int descriptor_;
    std::string temporaryPath_;
};

// The file that the path leads to in the end, through symbolic links; the path itself if there is none yet.
std::string TargetOf(const std::string& path) {
    char* resolved = ::realpath(path.c_str(), nullptr);
    if (resolved == nullptr) return path;
    std::string target(resolved);
    std::free(resolved);
    return target;
}

std::string FolderOf(const std::string& path) {
    const auto slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

mode_t ModeOfNewFiles() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

// The new name is on the disk when its folder is. A folder that cannot be synchronised, as on some network drives, has
// the file all the same.
void SyncFolder(const std::string& folder) {
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) return;
    ::fsync(descriptor);
    ::close(descriptor);
}

void WriteInPlace(const std::string& path, std::string_view bytes) {
    OpenFile file(path, ::open(path.c_str(), O_WRONLY | O_CLOEXEC));
    file.Write(bytes);
    file.Close();
}

void Replace(const std::string& path, const struct stat* old, std::string_view bytes) {
    // Replacing needs no permission for the file itself. Who may not write it shall not replace it either.
    if (old != nullptr && ::faccessat(AT_FDCWD, path.c_str(), W_OK, AT_EACCESS) != 0) Fail(path, errno);
    std::string temporary = FolderOf(path) + ".zentlor-XXXXXX";
    OpenFile file(path, ::mkostemp(temporary.data(), O_CLOEXEC));
    file.RemoveUnlessRenamed(temporary);
    file.Write(bytes);
    if (old != nullptr) {
        file.TakeOver(*old);
    } else {
        file.SetMode(ModeOfNewFiles());
    }
    file.Sync();
    file.Close();
    file.RenameTo(path);
    SyncFolder(FolderOf(path));
}

}  // namespace

void WriteFileAtomically(const std::string& path, std::string_view bytes) {
    const std::string target = TargetOf(path);
    struct stat old {};
    if (::stat(target.c_str(), &old) != 0) {
        if (errno != ENOENT) Fail(target, errno);
        Replace(target, nullptr, bytes);
    } else if (S_ISDIR(old.st_mode)) {
        Fail(target, EISDIR);
    } else if (S_ISREG(old.st_mode)) {
        Replace(target, &old, bytes);
    } else {
        WriteInPlace(target, bytes);
    }
}

}  // namespace zentlor::workspace
