#include "cli/heap.h"

#include <malloc.h>
#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>

namespace zentlor::cli {

void PrepareHeap() {
    constexpr int kReserve = 256 << 20;
    constexpr int kNever = 1 << 30;
    constexpr std::uintptr_t kLargePage = 2 << 20;
    mallopt(M_MMAP_THRESHOLD, kNever);
    mallopt(M_TRIM_THRESHOLD, kNever);
    mallopt(M_TOP_PAD, kReserve);
    const auto begin = reinterpret_cast<std::uintptr_t>(sbrk(0));
    void* volatile grown = std::malloc(kLargePage);  // volatile: a piece that nobody uses may be left out
    std::free(grown);
    const auto end = reinterpret_cast<std::uintptr_t>(sbrk(0));
    const std::uintptr_t aligned = (begin + kLargePage - 1) & ~(kLargePage - 1);
    if (aligned < end) madvise(reinterpret_cast<void*>(aligned), end - aligned, MADV_HUGEPAGE);
}

}  // namespace zentlor::cli
