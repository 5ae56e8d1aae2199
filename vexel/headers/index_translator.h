#pragma once

#include "vexel/export.h"

namespace vexel
{

/// Tells how item indices moved when items were added, removed or reordered, so that selections and sizes can follow.
class VEXEL_API IIndexTranslator
{
public:
    virtual ~IIndexTranslator();
    virtual bool TranslationIsPresented() const { return true; }  ///< False: nothing moved, nobody need ask further.
    /// Where the item is now. `removed`: may be null; otherwise it is set in any case, to true if the item is gone.
    virtual int TranslateIndex(int index, bool* removed) const = 0;
};

/// Items were inserted or removed behind one that stayed.
class VEXEL_API CAddRemoveTranslator : public IIndexTranslator
{
public:
    /// `index`: the last item before the change that keeps its place; -1 at the front.
    /// `delta`: so many were inserted behind it; below 0: removed.
    CAddRemoveTranslator(int index, int delta) : m_Index(index), m_Delta(delta) {}

    /// A removed item answers the index it was removed behind, which is -1 at the front.
    int TranslateIndex(int index, bool* removed) const override;

private:
    int m_Index;
    int m_Delta;
};

/// One item moved; those between its two places made room.
class VEXEL_API CMoveTranslator : public IIndexTranslator
{
public:
    explicit CMoveTranslator(int from = 0, int to = 0) : m_From(from), m_To(to) {}

    int TranslateIndex(int index, bool* removed) const override;  ///< Nothing is ever removed.

private:
    int m_From;
    int m_To;
};

}  // namespace vexel
