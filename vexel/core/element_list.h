#pragma once

#include "vexel/core/alive_guard.h"
#include "vexel/core/fwd.h"
#include "vexel/export.h"

#include <cstdint>
#include <vector>

namespace vexel
{

/// A list of elements, by index. Does not own them.
class VEXEL_API IVisualElements
{
public:
    IVisualElements() = default;
    IVisualElements(IVisualElements const&) = delete;
    IVisualElements& operator=(IVisualElements const&) = delete;
    virtual ~IVisualElements();

    virtual int GetCount() const = 0;
    virtual CVisualElement* GetItem(int index) = 0;
};

/// The children of an element. Their order is that of layout, painting, hit testing and tab walking.
class VEXEL_API IChildren : public IVisualElements
{
public:
    /// Takes the item out, then inserts it so that it stands at `to` of the shortened list, or at its end if `to` is not
    /// below the shortened count. Neither lays out nor repaints. An index outside the list changes nothing.
    virtual void MoveItem(int from, int to) = 0;
    virtual int GetIndex(CVisualElement* element) const = 0;  ///< The first match, -1 if there is none.
    /// Deletes the dynamic children and detaches the others, first to last.
    virtual void Clear() = 0;
    /// Appends. Elements enter and leave a tree by CVisualElement::ReParent; this is only its bookkeeping.
    virtual void AddItem(CVisualElement* element) = 0;
    virtual void RemoveItem(CVisualElement* element) = 0;  ///< The first match; the others keep their order.
};

/// The children list of an element: a growable array, which takes its first and its last item out in no time.
class VEXEL_API CChildren final : public IChildren
{
public:
    explicit CChildren(CVisualElement* owner) : m_Owner(owner) {}
    ~CChildren() override;  ///< Clears.

    int GetCount() const override { return m_Count; }
    CVisualElement* GetItem(int index) override { return m_Items[m_Head + index]; }  ///< Checks nothing.
    void MoveItem(int from, int to) override;
    int GetIndex(CVisualElement* element) const override;
    void Clear() override;
    /// A child that stands in the list already is refused with an assertion: it would be deleted twice.
    void AddItem(CVisualElement* element) override;
    void RemoveItem(CVisualElement* element) override;

    CVisualElement* const* begin() const { return m_Items + m_Head; }
    CVisualElement* const* end() const { return m_Items + m_Head + m_Count; }

private:
    friend class CVisualElement;

    void MakeRoom();
    void Append(CVisualElement* element);
    void TakeFirst();
    void RemoveAt(int index);
    int Find(CVisualElement const* element) const;

    CVisualElement* const m_Owner;
    CVisualElement** m_Items = nullptr;
    int m_Head = 0;  // free places before the first item
    int m_Count = 0;
    int m_Capacity = 0;
    bool m_Loose = false;  // holds items that are not children of the owner: they may stand twice
};

/// A list without doubles that a control gathers between two paints or layouts. Adding and removing take constant time,
/// whatever the count.
class VEXEL_API CElementList final : public IVisualElements
{
public:
    /// `hinted`: the only list of its kind that any of its elements stands in (a control's pending repaints). An entry's
    /// index is then kept in the element itself.
    explicit CElementList(bool hinted = false) : m_Hinted(hinted) {}
    ~CElementList() override { CAliveLink::Forget(this); }

    int GetCount() const override { return static_cast<int>(m_Items.size()) - m_Holes; }
    /// Null outside the list, and for what Reduce has taken out.
    CVisualElement* GetItem(int index) override;

    /// Appends, unless the element is not displayable or stands in the list.
    void AddElement(CVisualElement* element);
    /// What follows moves up; while somebody walks the list (CWalk) a null stays instead.
    void RemoveElement(CVisualElement const* element);
    bool Contains(CVisualElement const* element) const;
    /// Sets the entries that have an ancestor in the list to null. The indices stay, and so does the count.
    void Reduce();
    void DropHidden();     ///< Sets the entries that are not displayable to null.
    void Clear(int keep);  ///< Drops the entries from index `keep` on, all of them if it is below 1.
    /// Takes over the entries of the other list, which is empty afterwards. Keeps the memory of both.
    void TakeFrom(CElementList& other);

    /// The same entries, nulls included, in the same order.
    bool IsEqual(CElementList& other);

    /// While one of these stands, a removal leaves a null, so that the indices of what is being walked stay.
    class CWalk
    {
    public:
        explicit CWalk(CElementList& list) : m_List(&list)
        {
            list.Compact();
            ++list.m_Walks;
        }
        ~CWalk()
        {
            if (m_List)
                --m_List->m_Walks;
        }
        CWalk(CWalk const&) = delete;
        CWalk& operator=(CWalk const&) = delete;

    private:
        CAlivePtr<CElementList> m_List;
    };

private:
    // A place of the hash table: index of an entry, valid in one epoch only, so that emptying costs nothing.
    struct SPlace
    {
        std::uint32_t epoch = 0;
        int index = 0;
    };

    int Find(CVisualElement const* element) const;
    void Note(CVisualElement* element, int index);
    void NoteAll();
    void BuildTable();
    void DropTable();
    void Compact();

    std::vector<CVisualElement*> m_Items;  // removed entries stay as holes until somebody asks by index
    int m_Holes = 0;
    int m_Walks = 0;
    bool const m_Hinted;
    std::vector<SPlace> m_Table;  // a power of two; in use if m_Indexed
    bool m_Indexed = false;
    std::uint32_t m_Epoch = 1;
    std::uint32_t m_UsedPlaces = 0;
};

}  // namespace vexel
