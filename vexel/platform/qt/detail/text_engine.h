#pragma once

#include "vexel/platform/font.h"
#include "vexel/platform/qt/detail/coverage.h"
#include "vexel/platform/qt/detail/font_face.h"

#include <cstdint>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class QPainter;

namespace vexelbase::qt
{

/// A run that Qt has shaped: its width, and how it looks. Turned as its face is.
struct SShapedRun
{
    int width = 0;
    SCoverage coverage;  ///< Empty for a run with coloured glyphs and for one that is too large to be kept.
    bool colored = false;
    bool tooLarge = false;
    rectangle<int> place;               ///< Where `pixels` lie, from the pivot.
    std::vector<std::uint32_t> pixels;  ///< Premultiplied, for coloured glyphs.
    std::uint32_t ink = 0;              ///< The text colour that stands beside the coloured glyphs.
    std::vector<std::uint8_t> bits;
};

/// The faces in use and the shaped runs, both bounded: what was used longest ago goes first.
/// Belongs to the GUI thread. What it holds of Qt is given up before the application object goes.
class CTextEngine
{
public:
    static CTextEngine& Get();

    /// Valid until the next call.
    CFontFace& GetFace(font const& value, double ratio);
    /// Valid until the next call. `ink`: the text colour 0xFFRRGGBB; matters for runs with coloured glyphs only.
    SShapedRun const& GetRun(CFontFace const& face, std::string_view text, std::uint32_t ink);
    /// Draws the upright run with its left-top at (0, 0) of the painter, in the painter's pen.
    static void DrawShaped(QPainter& painter, CFontFace const& face, std::string_view text);

    void Clear();  ///< Before the application object goes.
    std::size_t GetRunCount() const { return m_Runs.size(); }

    static constexpr std::size_t MaxFaces = 48;
    static constexpr std::size_t MaxRuns = 1024;
    static constexpr std::size_t MaxRunBytes = 8u << 20;

private:
    struct SFace
    {
        font value;
        double ratio;
        std::uint64_t used;
        std::unique_ptr<CFontFace> face;
    };
    struct SKeyView
    {
        std::uint32_t face;
        std::string_view text;
    };
    struct SKey
    {
        std::uint32_t face;
        std::string text;
        operator SKeyView() const { return {face, text}; }
    };
    struct SHash
    {
        using is_transparent = void;
        std::size_t operator()(SKeyView const& key) const
        {
            return std::hash<std::string_view>()(key.text) ^ key.face * std::size_t{0x9E3779B97F4A7C15u};
        }
    };
    struct SEqual
    {
        using is_transparent = void;
        bool operator()(SKeyView const& a, SKeyView const& b) const { return a.face == b.face && a.text == b.text; }
    };
    struct SCached
    {
        SShapedRun run;
        std::list<SKey const*>::iterator order;
    };

    CTextEngine() = default;
    static void Shape(CFontFace const& face, std::string_view text, std::uint32_t ink, SShapedRun& run);
    static std::size_t BytesOf(SKey const& key, SShapedRun const& run);
    void DropOldest();

    std::vector<SFace> m_Faces;
    std::size_t m_Last = 0;
    std::uint64_t m_Clock = 0;
    std::uint32_t m_NextId = 1;
    std::unordered_map<SKey, SCached, SHash, SEqual> m_Runs;
    std::list<SKey const*> m_Order;  // the one used last in front
    std::size_t m_RunBytes = 0;
};

}  // namespace vexelbase::qt
