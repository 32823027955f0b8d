// How a list is sorted. Data move, nodes stay. Depth is logarithmic in all of them.
#pragma once

#include "zu_LnkList.h"

namespace zu {

// The larger of the first two different keys of the chain; null when there is none.
void* pivotOf(LnkNode* head, zu_LnkListCompareCallback compare);

// Moves what sorts before the pivot to the front of the chain list.first to list.last, and cuts the chain there into
// left and right. The cursor of the list serves as the walker.
void partitionChain(LnkList& list, LnkList& left, LnkList& right, void* pivot, zu_LnkListCompareCallback compare);

bool holdsNull(const LnkList& list);

// Sorts the data in an array beside the list, which must hold no null data. False, and nothing changed, without memory
// for it.
bool sortGathered(LnkList& list, zu_LnkListCompareCallback compare);

// Sorts a list without null data where it is, by partitions at random pivots.
void sortInPlace(LnkList& list, zu_LnkListCompareCallback compare);

// Sorts by partitions at the pivot of pivotOf, and nothing else: the rule for lists that hold null data. Null data is
// passed to the callback, and a part whose head is null stays as it is.
void sortByFirstPivots(LnkList& list, zu_LnkListCompareCallback compare);

} // namespace zu
