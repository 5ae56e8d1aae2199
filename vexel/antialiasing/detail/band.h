#pragma once

#include "vexel/antialiasing/line_contour.h"
#include "vexel/platform/geometry.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace vexelbase
{
class IPainter;
}

namespace antialiasing::detail
{

/// Cells beside a line, a strip of them for each pixel along it: four sums of 16 bits a cell, in the order of a pixel's
/// bytes (blue, green, red), then coverage. They wander along with the walk: what the samples can't reach any more is put
/// on the surface, and its strips serve those ahead.
///
/// "Along" is the axis in which the line is longer, "across" the other one.
class CBand
{
public:
    /// What the sums hold: the cells are small enough for the densest caps of lines up to this wide.
    static constexpr unsigned long WidestLine = 32;

    /// A line from `start` to `end`, which differ. `reach`: how far samples lie from it, in steps of at most a pixel.
    void Begin(vexelbase::point<double> const& start, vexelbase::point<double> const& end, double reach,
               CColorInfo const& colour, double opacity, vexelbase::IPainter& painter);
    /// A row of samples from (x, y) on. They are gathered until there are many.
    void AddRow(double x, double y, vexelbase::point<double> const& step, unsigned long count)
    {
        if (m_Count + count > m_Along.size())
            Stamp();
        double along = m_Steep ? y : x, across = m_Steep ? x : y;
        double const alongStep = m_Steep ? step.y : step.x, acrossStep = m_Steep ? step.x : step.y;
        for (unsigned long i = 0; i < count; ++i)
        {
            m_Along[m_Count] = along;
            m_Across[m_Count] = across;
            ++m_Count;
            along += alongStep;
            across += acrossStep;
        }
    }
    /// Before a row whose middle is at (x, y): makes room.
    void MoveTo(double x, double y)
    {
        m_Last = m_Steep ? y : x;
        if (m_Forward ? m_Last > m_Turn : m_Last < m_Turn)
            Advance();
    }
    void End();  ///< Puts what is left on the surface.

private:
    class CEditor;
    using Cell = std::uint16_t;
    static constexpr int Channels = 4;

    std::size_t StripOf(int along) const { return static_cast<std::size_t>(along) & m_Mask; }
    Cell* CellAt(int along, int across) { return m_Cells.data() + (m_Origins[StripOf(along)] + across) * Channels; }
    int FirstAcross(int along) const
    {
        std::size_t const strip = StripOf(along);
        return static_cast<int>(static_cast<std::ptrdiff_t>(strip) * m_Width - m_Origins[strip]);
    }
    void Open(int from, int to);
    void Advance();
    void Flush(int from, int to);
    void Stamp();
    void StampExactly(std::size_t sample);
    void Add(int along, int across, double weight);

    bool m_Steep = false;              // the line is higher than wide
    bool m_Forward = true;             // it runs to higher coordinates along
    vexelbase::point<double> m_Start;  // along and across
    double m_Slope = 0;
    double m_Reach = 0;      // of a row, along
    double m_HalfWidth = 0;  // from the line to the outermost cell across
    double m_Opacity = 0;
    std::array<float, 4> m_Ink{};  // blue, green, red, 255
    vexelbase::IPainter* m_Painter = nullptr;

    int m_Strips = 0;  // a power of two
    std::size_t m_Mask = 0;
    int m_Width = 0;      // cells in a strip
    bool m_Open = false;  // strips are in use: those of the pixels m_First to m_First + m_Strips - 1
    int m_First = 0;
    double m_Turn = 0;                      // how far the middle of a row may come before strips are needed anew
    double m_Last = 0;                      // where that middle was last
    std::vector<std::ptrdiff_t> m_Origins;  // of each strip: where the cell of across 0 would be
    std::vector<Cell> m_Cells;              // all zero but for what was stamped; room for a pair more at the end

    // Samples that wait.
    static constexpr std::size_t Batch = 256;
    std::size_t m_Count = 0;
    std::array<double, Batch> m_Along{};
    std::array<double, Batch> m_Across{};
};

}  // namespace antialiasing::detail
