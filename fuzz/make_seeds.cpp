// Writes the seeds of every fuzz target: `make_seeds DIR` makes a folder below DIR for each.

#include <cstdio>
#include <filesystem>
#include <fstream>

#include "seeds.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("make_seeds DIR\n", stderr);
        return 2;
    }
    zentlor::fuzz::Seeds seeds;
    zentlor::fuzz::AddAccessSeeds(seeds);
    zentlor::fuzz::AddOfficeSeeds(seeds);
    for (const auto& [target, documents] : seeds) {
        const std::filesystem::path folder = std::filesystem::path(argv[1]) / target;
        std::filesystem::create_directories(folder);
        for (std::size_t i = 0; i < documents.size(); ++i) {
            std::ofstream file(folder / ("seed" + std::to_string(i)), std::ios::binary);
            file << documents[i];
            if (!file.flush()) return 1;
        }
    }
    return 0;
}
