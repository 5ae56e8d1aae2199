#pragma once

#include "tests/headers/header_bench.h"
#include "tests/headers/header_items.h"
#include "vexel/headers/header.h"

#include <memory>
#include <string>

namespace vexel::test
{

/// A header on a window of 200 x 200: 60 pixels high at the top, 0 to 199; the rest is a pane. By its three levels a section
/// begins at 0, 20 or 40, and a leaf ends at 60. It stands at pixel 0 of a range of 1000.
class CTreeBench : public CEdgeBench
{
protected:
    CTestHost& GetHost() override { return m_Host; }
    CVisualElement& GetStrip() const override { return m_Header; }
    explicit CTreeBench(std::string const& tree = "A(a:40 b:60(x:30 y:30)) B:50", double scale = 1.0)
        : m_Tree(tree), m_Host(200, 200, scale), m_Header(*new CHeader(m_Host.Root(), {60, 60}, alTop)),
          m_Pane(*new CViewPane(m_Host.Root(), {0, 0}, alClient))
    {
        NameElement(m_Header, "header");
        NameElement(m_Pane, "pane");
        m_Header.SetBkColor(color_table[3]);
        m_Pane.SetBkColor(color_table[9]);
        m_Header.SetHorzScroll(&m_Scroll);
        m_Header.SetModel(&m_Tree);
        m_Host.Paint();
    }

    void Press(int x, int y, MouseButton button = mbLeft)
    {
        m_Host.Mouse().Move(m_Header, x, y);
        m_Host.Mouse().Press(button);
    }
    void Move(int x, int y) { m_Host.Mouse().Move(m_Header, x, y); }
    CItem* operator[](std::string const& name) { return m_Tree.Find(name); }
    std::string Hit(int x, int y) { return Describe(m_Header.HitTest(x, y)); }
    static std::string Describe(CHeader::HitTestResult const& hit)
    {
        return NameOf(hit.m_Item) + " " + std::to_string(hit.m_Area) + " " + vexel::test::Describe(hit.m_Rect);
    }
    /// "a:40 x:30": the columns by name and size.
    std::string Columns() const
    {
        std::string text;
        for (int i = 0; i < m_Header.GetCount(); ++i)
            text +=
                (i > 0 ? " " : "") + NameOf(m_Header.GetHeaderItem(i)) + ":" + std::to_string(m_Header.GetItemSize(i));
        return text;
    }
    /// "3 x 30 0": what the user does, to which item, by which column, and how it looks.
    std::string Doing() const
    {
        CHeader::Processing const& doing = m_Header.GetProcessing();
        return std::to_string(doing.m_State) + " " + NameOf(doing.m_Item) + " " + std::to_string(doing.m_ItemIndex) +
               " " + std::to_string(doing.m_HotState);
    }
    PaintLog Draw()
    {
        m_Header.Update(utElement);
        return m_Host.Paint().Of("header");
    }

    CItemTree m_Tree;
    CPixelScroll m_Scroll;
    CTestHost m_Host;
    CHeader& m_Header;
    CViewPane& m_Pane;
};

/// Writes down the header's signals, with items by their names: "canPress(a) clicked(a)".
class CHeaderLog : public subscriber_base_t
{
public:
    explicit CHeaderLog(CHeader& header)
    {
        header.m_SigCanResize.connect(this, &CHeaderLog::CanResize);
        header.m_SigResizing.connect(this, &CHeaderLog::Resizing);
        header.m_SigResized.connect(this, &CHeaderLog::Resized);
        header.m_SigCanDrag.connect(this, &CHeaderLog::CanDrag);
        header.m_SigDragOver.connect(this, &CHeaderLog::DragOver);
        header.m_SigDropped.connect(this, &CHeaderLog::Dropped);
        header.m_SigCanPress.connect(this, &CHeaderLog::CanPress);
        header.m_SigClicked.connect(this, &CHeaderLog::Clicked);
        header.m_SigGripDoubleClicked.connect(this, &CHeaderLog::DoubleClicked);
        header.m_SigExpanded.connect(this, &CHeaderLog::Expanded);
    }
    std::string Take()
    {
        std::string text;
        text.swap(m_Text);
        return text;
    }
    void Clear() { m_Text.clear(); }

private:
    void Write(std::string const& what, IHeaderItem* item, std::string const& rest = "")
    {
        m_Text += (m_Text.empty() ? "" : " ") + what + "(" + NameOf(item) + rest + ")";
    }
    void CanResize(CHeader*, IHeaderItem* item, bool* allow) { Write("canResize", item, *allow ? "" : " no"); }
    void Resizing(CHeader*, IHeaderItem* item, int width, bool* allow)
    {
        Write("resizing", item, " " + std::to_string(width) + (*allow ? "" : " no"));
    }
    void Resized(CHeader*, IHeaderItem* item, int width) { Write("resized", item, " " + std::to_string(width)); }
    void CanDrag(CHeader*, IHeaderItem* item, bool* allow) { Write("canDrag", item, *allow ? "" : " no"); }
    void DragOver(CHeader*, IHeaderItem* item, int from, int to)
    {
        Write("dragOver", item, " " + std::to_string(from) + " " + std::to_string(to));
    }
    void Dropped(CHeader*, IHeaderItem* item, int index) { Write("dropped", item, " " + std::to_string(index)); }
    void CanPress(CHeader*, IHeaderItem* item, bool* allow) { Write("canPress", item, *allow ? "" : " no"); }
    void Clicked(CHeader*, IHeaderItem* item) { Write("clicked", item); }
    void DoubleClicked(CHeader*, IHeaderItem* item) { Write("double", item); }
    void Expanded(CHeader*, IHeaderItem* item, bool expanded) { Write("expanded", item, expanded ? "" : " no"); }

    std::string m_Text;
};

}  // namespace vexel::test
