#pragma once

#include "tests/support/paint_calls.h"
#include "tests/support/slot.h"
#include "tests/support/text_log.h"
#include "tests/widgets/config_tree.h"
#include "vexel/core/base_control.h"
#include "vexel/testing/test_kit.h"
#include "vexel/widgets/configuration_viewer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

namespace vexel::test
{

/// Makes the steps and the painter's work visible: heights are told ones, and calls are written down.
class CToldVis : public ICategoryVis
{
public:
    int GetExpandedSize(IPainter* painter, IConfigCategory const* category, int width) const override
    {
        m_Log.Add("expanded " + Name(category) + " " + std::to_string(width) + Bracket(painter));
        return m_Expanded;
    }
    int GetCollapsedSize(IPainter* painter, IConfigCategory const* category, int width) const override
    {
        m_Log.Add("collapsed " + Name(category) + " " + std::to_string(width) + Bracket(painter));
        return m_Collapsed;
    }
    void ArrangeEditors(IPainter* painter, IConfigCategory* category, CVisualElement* parent,
                        rectangle<double> const& area) const override
    {
        m_Log.Add("arrange " + Name(category) + " in " + ElementName(parent) + " " + Describe(area) + Bracket(painter));
    }
    void Draw(IPainter*, IConfigCategory const* category, rectangle<double> const& rect, int width,
              unsigned int state) const override
    {
        m_Log.Add("draw " + Name(category) + " " + Describe(rect) + " " + std::to_string(width) + " " +
                  std::to_string(state));
    }

    mutable CTextLog m_Log{"; "};
    int m_Collapsed = 30;
    int m_Expanded = 90;

private:
    static std::string Name(IConfigCategory const* category) { return category ? category->GetCaption() : "none"; }
    static std::string Bracket(IPainter const* painter) { return painter && painter->m_Painting ? "" : " unprepared"; }
};

/// A viewer that fills a window of 400 x 300, and a model for it, with closed heights of 24, 24 and 32:
///
///     General      two editors
///       Sub        one editor
///     Other        two lines of description, no items
class CViewerPage : public testing::Test
{
protected:
    CViewerPage()
    {
        NameElement(m_Viewer, "viewer");
        NameElement(m_Name, "name");
        NameElement(m_Kind, "kind");
        NameElement(m_Below, "below");
    }
    void SetUpModel()
    {
        m_Viewer.SetModel(&m_Model);
        m_Host.Paint();
    }
    void Open(int row)
    {
        m_Viewer.GetRowSelectionModel()->SetCurrent(row);
        m_Host.Paint();
    }
    IContinuousItemViewModel& Rows() { return *m_Viewer.GetRowViewModel(); }
    int Current() { return m_Viewer.GetRowSelectionModel()->GetCurrent(); }
    std::string Heights()
    {
        std::string text;
        for (int i = 0; i < Rows().GetCount(); ++i)
            text += (i == 0 ? "" : " ") + std::to_string(Rows().GetItemSize(i));
        return text;
    }
    std::string Shown()
    {
        std::string text;
        IChildren& children = *m_Viewer.GetChildren();
        for (int i = 0; i < children.GetCount(); ++i)
            if (children.GetItem(i)->IsVisible())
                text += (text.empty() ? "" : " ") + ElementName(children.GetItem(i));
        return text;
    }

    CTreeModel m_Model;
    CTreeCategory& m_General = m_Model.AddCategory("General", "of all");
    CVisualElement& m_Name = m_General.AddEditor("Name", 60);
    CVisualElement& m_Kind = m_General.AddEditor("Kind", 90);
    CTreeCategory& m_Sub = m_General.AddCategory("Sub", "below");
    CVisualElement& m_Below = m_Sub.AddEditor("Below", 50);
    CTreeCategory& m_Other = m_Model.AddCategory("Other", "two\nlines");
    CToldVis m_Told;
    CTestHost m_Host{400, 300};
    CConfigurationViewer& m_Viewer = *new CConfigurationViewer(m_Host.Root(), {10, 10}, alClient);
};

}  // namespace vexel::test
