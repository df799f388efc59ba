#pragma once

#include "LockedArray.h"

/// The array that threads share: the printers found, the networks seen. See `LockedArray` for its operations.
template <typename Element>
class WTSafeArray : public LockedArray<WTSafeArray<Element>, Element>
{
    using Base = LockedArray<WTSafeArray<Element>, Element>;

public:
    using Base::Base;

    WTSafeArray arrayByApplyingDifference(const ArrayDifference<Element> &difference) const
    {
        WTSafeArray changed = this->mutableCopy();
        changed.applyDifference(difference);
        return changed;
    }
    void applyDifference(const ArrayDifference<Element> &difference)
    {
        this->change([&](QList<Element> &list) { ArrayOperations::apply(list, difference); });
    }
};
