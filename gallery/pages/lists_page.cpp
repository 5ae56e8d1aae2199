#include "gallery/pages/lists_page.h"

#include "gallery/frame/panel.h"
#include "vexel/core/dpi.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/device_pixels.h"
#include "vexel/platform/system.h"
#include "vexel/scroll/scroll_box.h"

#include <limits>

namespace gallery
{

namespace
{

int Scaled(int value)
{
    return ToDevicePixels(value);
}

// A quarter of the page: a caption, and below it a box for a list.
CScrollBox* AddBox(CVisualElement* parent, std::string const& caption)
{
    auto* const pane = new CVisualElement(parent, {188, 100}, alLeft);
    new CLabel(pane, {0, 34}, alTop, caption);
    new CPanel(parent, {4, 0}, alLeft);
    return new CScrollBox(pane, {0, 0}, alClient);
}

template <class Model> CTextRows<Model>* AddList(CScrollBox* box, typename CTextRows<Model>::Text const& text)
{
    auto* const list = new CTextRows<Model>(box, {0, 0}, alClient, text);
    box->ConnectElement(list, CScrollBox::ctVertical, true);
    return list;
}

}  // namespace

CListsPage::~CListsPage() = default;

void CListsPage::Build(CVisualElement* parent)
{
    auto const number = [](int row, std::string& text) { text = "Row " + std::to_string(row + 1); };

    auto* const all = AddList<IDiscreteItemViewModel>(AddBox(parent, "2,147,483,647 rows"), number);
    all->GetRowViewModel()->SetCount(std::numeric_limits<int>::max());
    Report(all->GetRowSelectionModel()->m_SigCurrentChanged, "all.current");

    auto* const unequal = AddList<IDiscreteItemViewModel>(AddBox(parent, "Rows of unequal height"), number);
    unequal->GetRowViewModel()->SetCount(1000000);
    for (int i = 0; i < 3000; i += 3)
        unequal->GetRowViewModel()->SetItemSize(i, Scaled(30 + i % 5 * 15));
    Report(unequal->GetRowSelectionModel()->m_SigCurrentChanged, "unequal.current");

    auto* const pixels = AddList<IContinuousItemViewModel>(AddBox(parent, "Rows scrolled by pixels"), number);
    pixels->SetAutoRowHeight(false);
    m_PixelItems.SetDefaultItemSize(Scaled(26));
    m_PixelItems.SetCount(100000);
    for (int i = 0; i < 3000; i += 3)
        m_PixelItems.SetItemSize(i, Scaled(40 + i % 4 * 10));
    pixels->SetRowViewModel(&m_PixelItems);
    Report(pixels->GetRowSelectionModel()->m_SigCurrentChanged, "pixels.current");

    auto* const equal = AddList<IDiscreteItemViewModel>(AddBox(parent, "Rows that fill the view"), number);
    equal->SetAutoRowHeight(false);
    m_EqualItems.SetItemSizeBounds(Scaled(24), Scaled(60));
    m_EqualItems.SetCount(12);
    equal->SetRowViewModel(&m_EqualItems);
    Report(equal->GetRowSelectionModel()->m_SigCurrentChanged, "equal.current");
}

}  // namespace gallery
