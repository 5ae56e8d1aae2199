#pragma once

#include "vexel/core/element_ptr.h"
#include "vexel/core/visual_element.h"

namespace vexel
{

/// A stack of pages: each child is a page, and the one that shows fills the notebook. It has no tabs of its own: join
/// CTabs::m_TabChanged to SetPageIndex, or drive it by anything else. The first page shows by itself, later ones come
/// hidden.
class VEXEL_API CNotebook : public CVisualElement
{
public:
    CNotebook(CVisualElement* parent, size<int> const& extent, Alignment alignment);
    ~CNotebook() override;

    // Pages, by index among the children -------------------------------------------------------------------------------------
    /// Of the page that was shown last; -1: none. Removing or moving other pages does not change the number.
    int GetPageIndex() const { return m_PageIndex; }
    /// Shows a page instead of the one before. An index without a page, or that of the page shown, changes nothing.
    void SetPageIndex(int index);
    CVisualElement* GetPage(int index) const;      ///< Null outside the range.
    int GetPageIndex(CVisualElement* page) const;  ///< -1: no page of this notebook.
    /// Detaches a page, which belongs to the caller then; null: there is none. In the place of one that showed the next one
    /// shows, or the new last one.
    CVisualElement* RemovePage(int index);
    /// Puts a page in another one's place and returns that, hidden; it belongs to the caller then. Null: nothing was done,
    /// since there is no such page, or the new one is null or the same.
    CVisualElement* ReplacePage(int index, CVisualElement* page);

public:  // From CVisualElement
    void SetPos(rectangle<int> const& rect, bool force) override;
    void DrawContent(IPainter*) override {}
    bool IsTransparent() const override;  ///< Without a page that shows.
    void AddNewChild(CVisualElement* child) override;
    void ProcessRearrange(CVisualElement** element) override;  ///< A hidden page asks for no layout.

private:
    bool IsPresent(int index) const;
    bool IsShown(CVisualElement* page) const { return page && page == m_Shown.get() && page->GetParent() == this; }

    int m_PageIndex = -1;
    CElementPtr<> m_Shown;
};

}  // namespace vexel
