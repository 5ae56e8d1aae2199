#pragma once

#include "vexel/headers/header_tree.h"

#include <cstdint>
#include <vector>

namespace vexel::detail
{

/// What a header knows of its model's tree: widths and states of all sections, with sums over the children of each, so that a
/// section is found by its place, a place by its section and a width changed in the time of one walk down the tree.
///
/// Sections are numbered, the model is number 0. Children of one parent have successive numbers, in their order. Numbers stay
/// until the next Build.
class CHeaderIndex
{
public:
    /// What a section counts for among its siblings.
    struct SSize
    {
        std::int64_t width = 0;
        int leaves = 0;

        SSize& operator+=(SSize const& other);
        SSize& operator-=(SSize const& other);
    };

    /// Asks for everything anew. Null: an empty tree.
    void Build(IHeaderModel* model);
    unsigned long GetVersion() const { return m_Version; }  ///< Another one after each Build.

    int GetLevelCount() const { return m_Levels; }              ///< Hidden ones too; at least 1.
    SSize const& GetTotal() const { return m_Nodes[0].below; }  ///< All columns.
    int GetNodeCount() const { return static_cast<int>(m_Nodes.size()); }

    // Sections: numbers must exist -----------------------------------------------------------------------------------------
    IHeaderItem* GetItem(int node) const { return m_Items[static_cast<std::size_t>(node)]; }
    std::vector<IHeaderItem*> const& GetItems() const { return m_Items; }  ///< By number; null first, for the model.
    int GetParent(int node) const { return At(node).parent; }              ///< 0: the model.
    int GetFirstChild(int node) const { return At(node).firstChild; }
    int GetChildCount(int node) const { return At(node).childCount; }
    int GetLastChild(int node) const { return At(node).firstChild + At(node).childCount - 1; }
    bool IsVisualLeaf(int node) const { return At(node).childCount == 0 || At(node).collapsed; }
    bool IsLastChild(int node) const { return node == GetLastChild(GetParent(node)); }
    bool IsShown(int node) const;  ///< All above it are expanded.
    SSize GetSize(int node) const { return IsVisualLeaf(node) ? SSize{At(node).width, 1} : At(node).below; }
    /// All columns before it, on the whole strip or among the children of its parent.
    SSize GetBefore(int node) const;
    SSize GetBeforeInParent(int node) const;
    int GetLastLeaf(int node) const;  ///< The visual leaf that following last children leads to; itself if it is one.

    // Search: -1 for nothing ---------------------------------------------------------------------------------------------
    int Find(IHeaderItem const* item) const;      ///< Also hidden ones. The item must live.
    int FindLeaf(int column) const;               ///< By its place among the columns.
    int FindLeafAt(std::int64_t position) const;  ///< The one that has this pixel, counted from the strip's beginning.
    /// The first child that doesn't end before this pixel, counted from the parent's beginning; the last one at most.
    int FindChildAt(int parent, std::int64_t position) const;

    // Changes: asks the section for its new value --------------------------------------------------------------------------
    void UpdateWidth(int node);
    void UpdateState(int node);

private:
    struct SNode
    {
        SSize below;    // all columns of its children, hidden ones as if they showed
        SSize sum;      // a tree of sums over the siblings, as Fenwick's
        int width = 0;  // of a visual leaf
        int parent = 0;
        int firstChild = 0;
        int childCount = 0;
        bool collapsed = false;
    };

    SNode const& At(int node) const { return m_Nodes[static_cast<std::size_t>(node)]; }
    SNode& At(int node) { return m_Nodes[static_cast<std::size_t>(node)]; }
    void Append(IHeaderItem* item, int parent);
    void Change(int node, SSize const& old, SSize const& now);
    template <class Passes> int Descend(int parent, Passes const& passes, SSize& before) const;

    IHeaderModel const* m_Model = nullptr;
    std::vector<SNode> m_Nodes = std::vector<SNode>(1);
    std::vector<IHeaderItem*> m_Items = std::vector<IHeaderItem*>(1);
    int m_Levels = 1;
    unsigned long m_Version = 0;
};

/// Where the sections of an indexed tree stand: the rectangles that a CPositionProcessor comes to on the same strip.
class CHeaderGeometry
{
public:
    CHeaderGeometry(CHeaderIndex const& index, rectangle<double> const& strip, bool stretchLast)
        : m_Index(index), m_Strip(strip), m_StretchLast(stretchLast),
          m_LevelHeight(strip.Height() / index.GetLevelCount())
    {}

    rectangle<double> GetRect(int node) const;  ///< All zero for a hidden one.
    rectangle<double> GetRest() const;          ///< Behind the last section; only without a stretched one.

    /// Calls `process` for the shown sections that have the pixel `x`, parents first, until it answers true.
    template <class Process> void ForEachAt(double x, Process const& process) const
    {
        int leaf = -1;
        if (double const along = x - m_Strip.left; along >= 0)
            leaf = m_Index.FindLeafAt(FloorToInt64(along));
        if (leaf < 0 && x >= m_Strip.left && m_StretchLast)
            leaf = m_Index.GetTotal().leaves > 0 ? m_Index.GetLastLeaf(0) : -1;
        if (leaf < 0)
            return;
        std::vector<int> path;
        for (int node = leaf; node > 0; node = m_Index.GetParent(node))
            path.push_back(node);
        SPlace place = GetTop();
        for (auto node = path.rbegin(); node != path.rend(); ++node)
        {
            place = GetPlace(place, *node, place.left + static_cast<double>(m_Index.GetBeforeInParent(*node).width));
            if (process(*node, GetRect(place, *node)))
                return;
        }
    }
    /// Calls `process` for the shown sections that overlap the strip from `left` to `right`, parents before their children.
    /// It must not change the tree.
    template <class Process> void ForEachBetween(double left, double right, Process const& process) const
    {
        WalkChildren(0, GetTop(), {left, right}, process);
    }
    /// The same for one section, which stands on the whole strip, and all below it.
    template <class Process> void ForEachBelow(int node, double left, double right, Process const& process) const
    {
        WalkOne(node, {m_Strip.left, m_Strip.right, m_Strip.top}, {left, right}, process);
    }
    void SetLevelHeight(double height) { m_LevelHeight = height; }

private:
    struct SPlace
    {
        double left;
        double right;  // edge included
        double top;
    };
    struct SSpan
    {
        double left;
        double right;
    };

    static std::int64_t FloorToInt64(double value);
    // The model's, one level above the strip.
    SPlace GetTop() const { return {m_Strip.left, m_Strip.right, m_Strip.top - m_LevelHeight}; }
    SPlace GetPlace(SPlace const& parent, int node, double left) const
    {
        bool const stretched = m_StretchLast && m_Index.IsLastChild(node);
        double const right = stretched ? parent.right : left + static_cast<double>(m_Index.GetSize(node).width) - 1;
        // As it comes out where the bottom is worked out first.
        double const top = m_Index.GetParent(node) == 0 ? m_Strip.top : parent.top + m_LevelHeight - 1 + 1;
        return {left, right, top};
    }
    rectangle<double> GetRect(SPlace const& place, int node) const
    {
        double const bottom = m_Index.IsVisualLeaf(node) ? m_Strip.bottom : place.top + m_LevelHeight - 1;
        return {place.left, place.top, place.right, bottom};
    }
    template <class Process>
    void WalkOne(int node, SPlace const& place, SSpan const& span, Process const& process) const
    {
        process(node, GetRect(place, node));
        if (!m_Index.IsVisualLeaf(node))
            WalkChildren(node, place, span, process);
    }
    template <class Process>
    void WalkChildren(int parent, SPlace const& place, SSpan const& span, Process const& process) const
    {
        int const end = m_Index.GetFirstChild(parent) + m_Index.GetChildCount(parent);
        // A pixel early, for a strip that begins at a part of one.
        int node = m_Index.FindChildAt(parent, FloorToInt64(span.left - place.left) - 1);
        if (node < 0)
            return;
        double left = place.left + static_cast<double>(m_Index.GetBeforeInParent(node).width);
        for (; node < end && left <= span.right; ++node)
        {
            SPlace const own = GetPlace(place, node, left);
            if (own.right >= span.left)
                WalkOne(node, own, span, process);
            left += static_cast<double>(m_Index.GetSize(node).width);
        }
    }

    CHeaderIndex const& m_Index;
    rectangle<double> const m_Strip;
    bool const m_StretchLast;
    double m_LevelHeight;
};

}  // namespace vexel::detail
