#pragma once

#include "vexel/scroll/scroll_box.h"
#include "vexel/views/row_viewer.h"

#include <string>
#include <vector>

namespace gallery
{

using namespace vexel;

/// The names of the pages, one below the other. A click or a key chooses one.
class CPageList : public CScrollBox, private CEventHandler
{
public:
    CPageList(CVisualElement* parent, size<int> const& extent, Alignment alignment, std::vector<std::string> titles);

    int GetCurrent() const { return m_Rows.GetRowSelectionModel()->GetCurrent(); }
    void SetCurrent(int index);  ///< Cut to the list; fires m_SigChosen on a change.

    signal_t<CPageList*, int> m_SigChosen;

private:
    class CRows : public CRowViewer<IDiscreteItemViewModel>
    {
    public:
        CRows(CVisualElement* parent, std::vector<std::string> const& titles);

        void SetHot(int row);
        void SetPos(rectangle<int> const& rect, bool force) override;  ///< The current row shows from the beginning.

    protected:
        int CalculateDefaultRowHeight() const override;
        void DrawRow(IPainter* painter, int row, int skip, int state, rectangle<double> const& rect,
                     IDirtyItemSet::DirtyType dirty) override;

    private:
        std::vector<std::string> const& m_Titles;
        int m_Hot = -1;
    };

    void CurrentChanged(int old, int now);

    // From CEventHandler
    bool ProcessMouseMove(int x, int y, int keys, MouseButton button, bool* handled) override;
    void ProcessMouseLeave(bool* handled) override;

    std::vector<std::string> const m_Titles;
    CRows m_Rows;
};

}  // namespace gallery
