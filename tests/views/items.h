#pragma once

#include "vexel/headers/index_translator.h"
#include "vexel/testing/signal_log.h"
#include "vexel/views/item_view_model.h"

#include <string>

// What the tests of models share.

/// The dirty items from -1 to `last`, as "2-5 7"; "none" for an empty set, "others" for one without any of these.
inline std::string Dirty(vexel::IDirtyItemSet const& set, int last)
{
    if (set.GetItemType(0) == vexel::IDirtyItemSet::dirtyNone)
        return "none";
    std::string text;
    for (int i = -1; i <= last; ++i)
    {
        if (set.GetItemType(i) != vexel::IDirtyItemSet::dirtyItem)
            continue;
        int const first = i;
        while (i < last && set.GetItemType(i + 1) == vexel::IDirtyItemSet::dirtyItem)
            ++i;
        text += (text.empty() ? "" : " ") + std::to_string(first) + (i > first ? "-" + std::to_string(i) : "");
    }
    return text.empty() ? "others" : text;
}

/// Writes down a model's signals: "size(position, delta, handled)", as the viewer is asked, and "changed()".
class CModelLog : public vexel::test::CSignalLog
{
public:
    explicit CModelLog(vexel::IBaseItemViewModel& model)
    {
        Add(model.m_SigSizeChanged, "size");
        Add(model.m_SigChanged, "changed");
    }
};

/// A translator that has nothing to say, although it would.
class CSilentTranslator : public vexel::IIndexTranslator
{
public:
    bool TranslationIsPresented() const override { return false; }
    int TranslateIndex(int index, bool*) const override { return index + 1; }
};
