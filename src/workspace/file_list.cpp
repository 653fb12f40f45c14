#include "workspace/file_list.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "readers/exported_module.h"
#include "readers/reader.h"
#include "readers/sentences.h"

namespace zentlor::workspace {

namespace {

namespace fs = std::filesystem;

// Enough to see how an Access export begins in UTF-16, and more than any document needs.
constexpr std::size_t kFirstBytes = 256;

bool IsModuleByName(const std::string& path) {
    return readers::IsExportedModule(path, {});
}

// Sets the file's role; false for what is neither a module nor a document.
bool Classify(FoundFile& file) {
    if (IsModuleByName(file.path)) return true;
    const std::string first = ReadFirstBytes(file.path, kFirstBytes);
    if (readers::RecogniseFile(first) == readers::FileKind::Other) return readers::IsExportedModule(file.path, first);
    file.role = FileRole::Document;
    return true;
}

class FolderWalk {
  public:
    explicit FolderWalk(std::string root) : root_(std::move(root)) {}

    FileList Run() {
        std::error_code error;
        fs::directory_iterator probe(root_, error);
        if (error) {
            readers::Fail(
                error == std::errc::permission_denied ? readers::ReadFailure::NoPermission
                                                      : readers::ReadFailure::NotFound,
                "Der Ordner „[%1]“ kann nicht gelesen werden ([%2]); den Namen und die Zugriffsrechte prüfen.",
                "The folder “[%1]” cannot be read ([%2]); check its name and the permissions.",
                {root_, error.message()});
        }
        Visit(root_, "");
        std::sort(list_.files.begin(), list_.files.end(),
                  [](const FoundFile& a, const FoundFile& b) { return a.relative < b.relative; });
        return std::move(list_);
    }

  private:
    void Visit(const fs::path& folder, const std::string& prefix) {
        std::error_code error;
        fs::directory_iterator entry(folder, error);
        for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
            VisitEntry(*entry, prefix);
        }
        if (!error) return;
        list_.problems.push_back(readers::MakeSentence(
            "Der Ordner „[%1]“ wurde nicht gelesen ([%2]); die Zugriffsrechte prüfen.",
            "The folder “[%1]” was not read ([%2]); check the permissions.", {folder.string(), error.message()}));
    }

    void VisitEntry(const fs::directory_entry& entry, const std::string& prefix) {
        const std::string name = entry.path().filename().string();
        if (name.starts_with('.')) return;
        std::error_code error;
        if (entry.is_directory(error) && !entry.is_symlink(error)) {
            Visit(entry.path(), prefix + name + "/");
            return;
        }
        // A FIFO or a device that bears the name of a module is named as a failure when it is read.
        FoundFile file{entry.path().string(), prefix + name};
        if (!entry.is_regular_file(error) && !IsModuleByName(name)) return;
        if (Classify(file)) list_.files.push_back(std::move(file));
    }

    std::string root_;
    FileList list_;
};

}  // namespace

std::string ReadFirstBytes(const std::string& path, std::size_t count) {
    std::error_code error;
    if (!fs::is_regular_file(path, error)) return {};
    const int descriptor = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0) return {};
    std::string bytes(count, '\0');
    const ssize_t n = read(descriptor, bytes.data(), bytes.size());
    close(descriptor);
    bytes.resize(n < 0 ? 0 : static_cast<std::size_t>(n));
    return bytes;
}

FileList ListFolder(const std::string& folder) {
    return FolderWalk(folder).Run();
}

}  // namespace zentlor::workspace
