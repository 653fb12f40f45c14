#include "cli/heap.h"

#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdlib>
#include <memory>

namespace zentlor::cli {

void PrepareHeap() {
    constexpr int kReserve = 256 << 20;
    constexpr int kNever = 1 << 30;
    constexpr std::size_t kLargePage = 2 << 20;
    mallopt(M_MMAP_THRESHOLD, kNever);
    mallopt(M_TRIM_THRESHOLD, kNever);
    mallopt(M_TOP_PAD, kReserve);
    void* begin = sbrk(0);
    void* volatile grown = std::malloc(kLargePage);  // volatile: a piece that nobody uses may be left out
    std::free(grown);
    std::size_t size = static_cast<std::size_t>(static_cast<char*>(sbrk(0)) - static_cast<char*>(begin));
    if (std::align(kLargePage, kLargePage, begin, size) != nullptr) madvise(begin, size, MADV_HUGEPAGE);
}

}  // namespace zentlor::cli
