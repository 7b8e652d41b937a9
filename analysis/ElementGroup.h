#pragma once

namespace trelonit {

/// The element groups, in the order of the blocks of the check record.
enum class ElementGroup { UpPoyas, DwnPoyas, Stoyka, Raskos, OpornRaskos };

constexpr int elementGroupCount = 5;

}  // namespace trelonit
