#pragma once

// The documents that fuzz targets start from. They are written by the same writers as the documents of the tests.

#include <map>
#include <string>
#include <vector>

namespace zentlor::fuzz {

/// By name of the target, without its "fuzz_": the seeds it starts from.
using Seeds = std::map<std::string, std::vector<std::string>>;

void AddAccessSeeds(Seeds& seeds);
/// After the databases' seeds: the target for whole files takes some of them too.
void AddOfficeSeeds(Seeds& seeds);

/// Between the pieces of the input of the target `project`.
inline constexpr const char* kSeparator = "\n----\n";

}  // namespace zentlor::fuzz
