#include "readers/project_search.h"

#include "readers/ovba_project.h"

namespace zentlor::readers {
namespace {

// Below `storage`, which lies `depth` storages deep.
FoundProject Search(const Storage& storage, std::uint32_t depth, std::uint32_t maximumDepth) {
    FoundProject found;
    for (const Text& name : storage.StorageNames()) {
        if (depth == maximumDepth) {
            found.tooDeep = true;
            break;
        }
        auto below = storage.OpenStorage(name);
        if (!below) continue;
        if (HoldsOvbaProject(*below)) return {std::move(below), false};
        FoundProject deeper = Search(*below, depth + 1, maximumDepth);
        if (deeper.root) return deeper;
        found.tooDeep |= deeper.tooDeep;
    }
    return found;
}

}  // namespace

FoundProject FindOvbaProject(const Storage& root, std::uint32_t maximumDepth) {
    // The places of Excel, Word and Access.
    const std::vector<Text> places[] = {{u"_VBA_PROJECT_CUR"}, {u"Macros"}, {u"VBA", u"VBAProject"}};
    for (const auto& place : places) {
        auto project = OpenPath(root, place);
        if (project && HoldsOvbaProject(*project)) return {std::move(project), false};
    }
    return Search(root, 0, maximumDepth);
}

}  // namespace zentlor::readers
