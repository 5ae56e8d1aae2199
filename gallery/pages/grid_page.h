#pragma once

#include "gallery/frame/page.h"
#include "gallery/frame/table.h"

namespace gallery
{

class CGridPage : public CPage, public subscriber_base_t
{
public:
    CGridPage();
    ~CGridPage() override;

    void Build(CVisualElement* parent) override;

private:
    void SectionClicked(CSimpleHeader* header, int section);
    void SectionMoved(CSimpleHeader* header, int from, int to);
    void RowsChanged();
    void SelectionChanged();
    void RepaintAll();

    signal_t<int, int> m_SigRows;  // the first and the last row in view
    signal_t<int> m_SigSelected;   // how many rows are

    CTextHeaderModel m_Columns;
    CTextGrid* m_Grid = nullptr;
    range<int> m_Shown;
};

}  // namespace gallery
