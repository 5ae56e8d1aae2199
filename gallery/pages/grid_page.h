#pragma once

#include "gallery/frame/page.h"
#include "gallery/frame/table.h"
#include "vexel/views/tooltip_event_handler.h"

namespace gallery
{

class CGridPage : public CPage, public subscriber_base_t
{
public:
    CGridPage();
    ~CGridPage() override;

    void Build(CVisualElement* parent) override;

private:
    /// Tells which cell the pointer rests on.
    class CCellTips : public CTooltipEventHandler
    {
    public:
        explicit CCellTips(CTextGrid*& grid) : m_Grid(grid) {}

    protected:
        void GetTooltipAttr(CTooltipEvent* event) override;

    private:
        CTextGrid*& m_Grid;  // the page's
    };

    void SectionClicked(CSimpleHeader* header, int section);
    void SectionMoved(CSimpleHeader* header, int from, int to);
    void RowsChanged();
    void SelectionChanged();
    void RepaintAll();

    signal_t<int, int> m_SigRows;  // the first and the last row in view
    signal_t<int> m_SigSelected;   // how many rows are

    CTextHeaderModel m_Columns;
    CTextGrid* m_Grid = nullptr;
    CCellTips m_Tips{m_Grid};
    range<int> m_Shown;
};

}  // namespace gallery
