#pragma once

namespace zentlor::cli {

/// Lets the heap grow in one piece of large pages and keep what is given back. A run takes a project's text in, turns
/// it over a few times and ends: small pages would cost it more time in the kernel than the checks take. Only address
/// space is taken in advance; where large pages are not to be had, nothing changes.
///
/// Meant for folders, whose text may be large. What is kept and rounded up would be much beside a single document.
void PrepareHeap();

}  // namespace zentlor::cli
