#pragma once

// The documents that fuzz targets start from. They are written by the same writers as the documents of the tests.

#include <map>
#include <string>
#include <vector>

namespace zentlor::fuzz {

/// By name of the target, without its "fuzz_": the seeds it starts from.
using Seeds = std::map<std::string, std::vector<std::string>>;

void AddAccessSeeds(Seeds& seeds);

}  // namespace zentlor::fuzz
