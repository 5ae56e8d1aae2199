#pragma once

namespace antialiasing
{

/// The position of a pixel. Ordered by column, then by row, so that maps of it are walked column by column.
struct tagPOINT
{
    long x = 0;
    long y = 0;

    friend bool operator==(tagPOINT const&, tagPOINT const&) = default;
    friend bool operator<(tagPOINT const& a, tagPOINT const& b) { return a.x != b.x ? a.x < b.x : a.y < b.y; }
};

/// Four edges in pixels. Whether right and bottom belong to it is up to who uses it.
struct tagRECT
{
    long left = 0;
    long top = 0;
    long right = 0;
    long bottom = 0;

    friend bool operator==(tagRECT const&, tagRECT const&) = default;
};

/// Moves a position: the change of keys that a contour's Offset asks of a double_map.
struct OffsetPtPred
{
    long dx = 0;
    long dy = 0;

    tagPOINT operator()(tagPOINT const& key) const { return {key.x + dx, key.y + dy}; }
};

}  // namespace antialiasing
