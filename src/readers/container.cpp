#include "readers/container.h"

namespace zentlor::readers {

bool HasCompoundSignature(std::string_view bytes) {
    return bytes.substr(0, 8) == std::string_view("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);
}

bool HasZipSignature(std::string_view bytes) {
    return bytes.substr(0, 4) == std::string_view("PK\x03\x04", 4);
}

std::unique_ptr<Storage> OpenPath(const Storage& root, const std::vector<Text>& names) {
    std::unique_ptr<Storage> found;
    for (const Text& name : names) {
        found = (found ? *found : root).OpenStorage(name);
        if (!found) return nullptr;
    }
    return found;
}

}  // namespace zentlor::readers
