#include "tests/platform/text_device.h"

#include "vexel/platform/border.h"
#include "vexel/platform/palette.h"
#include "vexel/platform/system.h"

#include <gtest/gtest.h>

namespace vexel::test
{

namespace
{

class CGreyPalette : public ISysPalette
{
public:
    _color GetColor(SysColor number) const override { return _color::FromRgb(number, m_Level, number); }

    int m_Level = 10;
};

class CPaletteSystem : public ISystem
{
public:
    CPaletteSystem() : m_Former(SetCurrentSystem(this)) {}
    ~CPaletteSystem() override { SetCurrentSystem(m_Former); }

    IPointer* GetPointer() override { return nullptr; }
    IClipboard* GetClipboard() override { return nullptr; }
    ISysPalette* GetPalette() override { return m_HasPalette ? &m_Palette : nullptr; }
    font GetDefaultFont() override { return {}; }
    int GetSystemMetric(int) override { return 0; }
    double GetScale() override { return 1.25; }
    vexel_ptr<ISysTimer> CreateTimer(int, int) override { return {}; }
    vexel_ptr<IRasterPicture> CreateRasterPicture(size<int> const&) override { return {}; }
    vexel_ptr<IRasterPicture> CreateRasterPicture(XPMBuf const&) override { return {}; }
    vexel_ptr<IRunner> GetRunner() override { return {}; }
    vexel_ptr<ILock> CreateLock() override { return {}; }

    CGreyPalette m_Palette;
    bool m_HasPalette = true;

private:
    ISystem* m_Former;
};

_color Rgb(int red, int green, int blue) { return _color::FromRgb(red, green, blue); }

}  // namespace

// System --------------------------------------------------------------------------------------------------------------

TEST(System, ThePresentSystemIsTheOneSetLast)
{
    ISystem* const former = GetCurrentSystem();
    {
        CPaletteSystem system;
        EXPECT_EQ(GetCurrentSystem(), &system);
        EXPECT_EQ(GetSystemScale(), 1.25);
        EXPECT_EQ(SetCurrentSystem(nullptr), &system);
        EXPECT_EQ(GetCurrentSystem(), nullptr);
        EXPECT_EQ(GetSystemScale(), 1.0);
        EXPECT_EQ(GetDefaultGUIFont().size, 8);
        EXPECT_EQ(GetDefaultGUIFont().name, "");
        SetCurrentSystem(&system);
    }
    EXPECT_EQ(GetCurrentSystem(), former);
}

TEST(System, AutomaticScalingIsOnUntilTurnedOff)
{
    EXPECT_TRUE(GetDPIAutoScale());
    SetDPIAutoScale(false);
    EXPECT_FALSE(GetDPIAutoScale());
    SetDPIAutoScale(true);
}

// Palettes ------------------------------------------------------------------------------------------------------------

TEST(Palette, TheSystemsPaletteIsNullWithoutASystemAndTheDefaultOneStillAnswers)
{
    CPaletteSystem system;
    EXPECT_EQ(GetSysPalette(), &system.m_Palette);
    system.m_HasPalette = false;
    EXPECT_EQ(GetSysPalette(), nullptr);
    EXPECT_FALSE(GetDefaultPalette()->GetColor(ISysPalette::scFace).m_None);
    SetCurrentSystem(nullptr);
    EXPECT_EQ(GetSysPalette(), nullptr);
    EXPECT_EQ(GetDefaultPalette()->GetColor(ISysPalette::scWindow), color_table[9]);
    EXPECT_EQ(GetDefaultPalette()->GetColor(ISysPalette::scControlText), color_table[1]);
    SetCurrentSystem(&system);
}

TEST(Palette, TheDefaultPaletteShowsTheSystemsColoursAndTakesNone)
{
    CPaletteSystem system;
    ICustomPalette* const palette = GetDefaultPalette();
    EXPECT_EQ(palette->GetColor(ISysPalette::scHighlight), Rgb(9, 10, 9));
    palette->SetColor(ISysPalette::scHighlight, color_table[6]);
    EXPECT_EQ(palette->GetColor(ISysPalette::scHighlight), Rgb(9, 10, 9));
    system.m_Palette.m_Level = 20;
    EXPECT_EQ(palette->GetColor(ISysPalette::scHighlight), Rgb(9, 20, 9));
}

TEST(Palette, ACustomPaletteShowsTheSystemsColoursUntilTheyAreSet)
{
    CPaletteSystem system;
    vexel_ptr<ICustomPaletteEx> const palette = CreateCustomPalette();
    EXPECT_EQ(palette->GetRefCount(), 1);
    EXPECT_TRUE(palette->GetBaseColor().m_None);
    EXPECT_EQ(palette->GetColor(ISysPalette::scFace), Rgb(3, 10, 3));
    palette->SetColor(ISysPalette::scHighlight, color_table[6]);
    EXPECT_EQ(palette->GetColor(ISysPalette::scHighlight), color_table[6]);
    EXPECT_EQ(palette->GetColor(ISysPalette::scFace), Rgb(3, 10, 3));
    EXPECT_EQ(CreateCustomPalette()->GetColor(ISysPalette::scHighlight), Rgb(9, 10, 9));
    palette->SetColor(ISysPalette::scLiteral, color_table[6]);
    palette->SetColor(static_cast<ISysPalette::SysColor>(-1), color_table[6]);
    EXPECT_EQ(palette->GetColor(ISysPalette::scLiteral), Rgb(14, 10, 14));
}

TEST(Palette, TheBaseColourGivesTheFiveColoursOfEdges)
{
    CPaletteSystem system;
    vexel_ptr<ICustomPaletteEx> const palette = CreateCustomPalette();
    palette->SetColor(ISysPalette::scShadow, color_table[6]);
    palette->SetBaseColor(Rgb(100, 200, 0));
    EXPECT_EQ(palette->GetBaseColor(), Rgb(100, 200, 0));
    EXPECT_EQ(palette->GetColor(ISysPalette::scFace), Rgb(100, 200, 0));
    EXPECT_EQ(palette->GetColor(ISysPalette::scLight), Rgb(224, 244, 204));
    EXPECT_EQ(palette->GetColor(ISysPalette::scHalfLight), Rgb(162, 222, 102));
    EXPECT_EQ(palette->GetColor(ISysPalette::scShadow), Rgb(65, 130, 0));
    EXPECT_EQ(palette->GetColor(ISysPalette::scDarkShadow), Rgb(35, 70, 0));
    EXPECT_EQ(palette->GetColor(ISysPalette::scWindow), Rgb(1, 10, 1));
    EXPECT_EQ(palette->GetColor(ISysPalette::scControlText), Rgb(8, 10, 8));
    palette->SetColor(ISysPalette::scLight, color_table[9]);
    EXPECT_EQ(palette->GetColor(ISysPalette::scLight), color_table[9]);
    palette->SetBaseColor(color_table[0]);
    EXPECT_EQ(palette->GetColor(ISysPalette::scLight), Rgb(4, 10, 4));
    EXPECT_EQ(palette->GetColor(ISysPalette::scFace), Rgb(3, 10, 3));
}

// Borders -------------------------------------------------------------------------------------------------------------

namespace
{

/// Draws on a surface of 8 by 6 pixels, with a palette of colours that can be told apart.
class Border : public testing::Test, public STextBench
{
protected:
    Border()
    {
        Clear();
        painter.m_Palette = CreateCustomPalette();
        for (int number = 3; number <= 7; ++number)
            painter.m_Palette->SetColor(static_cast<ISysPalette::SysColor>(number), Rgb(number, 0, 0));
    }

    void Clear()
    {
        pixels.Resize({0, 0}, 0);
        pixels.Resize({8, 6}, 0xFFFFFFFFu);
    }
    /// The surface as text: the number of the colour, a dot where nothing was painted.
    std::string Drawn(BorderShape shape, BorderStyle style, bool fill, rectangle<double> const& rect = {1, 1, 6, 4})
    {
        Clear();
        DrawBorder(&painter, rect, shape, style, fill);
        return Surface();
    }
    std::string Surface() const
    {
        std::string text;
        for (int y = 0; y < 6; ++y)
        {
            text += y > 0 ? "/" : "";
            for (int x = 0; x < 8; ++x)
                text += pixels.Row(y)[x] == 0xFFFFFFFFu
                            ? '.'
                            : static_cast<char>('0' + CPixelBuffer::ToColor(pixels.Row(y)[x]).Red());
        }
        return text;
    }
};

}  // namespace

TEST_F(Border, ABoxHasAnEdgeOfTwoLines)
{
    EXPECT_EQ(Drawn(bsBox, bsRaised, true), "......../.444447./.433367./.466667./.777777./........");
    EXPECT_EQ(Drawn(bsBox, bsSunken, true), "......../.777774./.766664./.763334./.444444./........");
    EXPECT_EQ(Drawn(bsBox, bsFlat, true), "......../.666666./.633336./.633336./.666666./........");
}

TEST_F(Border, AThinBoxHasAnEdgeOfOneLine)
{
    EXPECT_EQ(Drawn(bsThinBox, bsRaised, true), "......../.444447./.433337./.433337./.777777./........");
    EXPECT_EQ(Drawn(bsThinBox, bsSunken, true), "......../.777774./.733334./.733334./.444444./........");
    EXPECT_EQ(Drawn(bsThinBox, bsFlat, true), "......../.666666./.633336./.633336./.666666./........");
}

TEST_F(Border, WithoutFillingTheInsideIsLeft)
{
    EXPECT_EQ(Drawn(bsBox, bsRaised, false), "......../.444447./.4...67./.466667./.777777./........");
    EXPECT_EQ(Drawn(bsThinBox, bsFlat, false), "......../.666666./.6....6./.6....6./.666666./........");
}

TEST_F(Border, OpenShapesAreSingleSidesAndNeverFilled)
{
    EXPECT_EQ(Drawn(bsTopLine, bsRaised, true), "......../.444444./......../......../......../........");
    EXPECT_EQ(Drawn(bsTopLine, bsSunken, true), "......../.777777./......../......../......../........");
    EXPECT_EQ(Drawn(bsBottomLine, bsRaised, true), "......../......../......../......../.777777./........");
    EXPECT_EQ(Drawn(bsBottomLine, bsSunken, true), "......../......../......../......../.444444./........");
    EXPECT_EQ(Drawn(bsLeftLine, bsRaised, true), "......../.4....../.4....../.4....../.4....../........");
    EXPECT_EQ(Drawn(bsRightLine, bsRaised, true), "......../......7./......7./......7./......7./........");
    EXPECT_EQ(Drawn(bsRightLine, bsFlat, true), "......../......6./......6./......6./......6./........");
    EXPECT_EQ(Drawn(bsNothing, bsRaised, true), "......../......../......../......../......../........");
}

TEST_F(Border, AFrameIsNeverFilled)
{
    EXPECT_EQ(Drawn(bsFrame, bsRaised, true), "......../.444447./.4....7./.4....7./.777777./........");
    EXPECT_EQ(Drawn(static_cast<BorderShape>(8), bsRaised, true),
              "......../......../......../......../......../........");
    EXPECT_EQ(Drawn(bsFrame, static_cast<BorderStyle>(9), true),
              "......../.666666./.6....6./.6....6./.666666./........");
}

TEST_F(Border, SmallRectanglesAndExchangedCornersDoNoHarm)
{
    EXPECT_EQ(Drawn(bsBox, bsRaised, true, {2, 2, 2, 2}), "......../......../..7...../......../......../........");
    EXPECT_EQ(Drawn(bsBox, bsRaised, true, {2, 2, 3, 3}), "......../......../..47..../..77..../......../........");
    EXPECT_EQ(Drawn(bsBox, bsRaised, true, {6, 4, 1, 1}), "......../.444447./.433367./.466667./.777777./........");
}

TEST_F(Border, PenAndBrushStayAsTheyWere)
{
    brush const fill{color_table[3], brush::bsNone};
    pen const line{color_table[4], pen::psDot, 2};
    painter.SetBrush(fill);
    painter.SetPen(line);
    DrawBorder(&painter, {1, 1, 6, 4}, bsBox, bsRaised, true);
    EXPECT_EQ(painter.GetBrush(), fill);
    EXPECT_EQ(painter.GetPen(), line);
    DrawBorder(nullptr, {1, 1, 6, 4}, bsBox, bsRaised, true);
}

TEST_F(Border, LinesAreOnePixelWideAtAnyMapping)
{
    IPainter::CoordInfo info;
    info.m_LogicalExtent = {4, 24};
    info.m_DeviceExtent = {8, 6};
    painter.SetCoordSystem(IPainter::mmCustom, &info);
    EXPECT_EQ(Drawn(bsBox, bsRaised, true, {0.5, 4, 3, 16}), "......../.444447./.433367./.466667./.777777./........");
}

TEST_F(Border, LightFallsFromTheLeftTopAlsoOnTurnedAxes)
{
    IPainter::CoordInfo info;
    info.m_LogicalExtent = {8, 6};
    info.m_DeviceExtent = {-8, -6};
    info.m_DeviceOrigin = {7, 5};
    painter.SetCoordSystem(IPainter::mmCustom, &info);
    EXPECT_EQ(Drawn(bsBox, bsRaised, true, {1, 1, 6, 4}), "......../.444447./.433367./.466667./.777777./........");
    EXPECT_EQ(Drawn(bsLeftLine, bsRaised, true, {1, 1, 6, 4}), "......../.4....../.4....../.4....../.4....../........");
}

TEST_F(Border, WithoutAPaletteInThePainterTheDefaultOneServes)
{
    painter.m_Palette.reset();
    DrawBorder(&painter, {1, 1, 6, 4}, bsThinBox, bsFlat, true);
    EXPECT_EQ(pixels.Row(1)[1], CPixelBuffer::ToPixel(GetDefaultPalette()->GetColor(ISysPalette::scShadow)));
    EXPECT_EQ(pixels.Row(2)[2], CPixelBuffer::ToPixel(GetDefaultPalette()->GetColor(ISysPalette::scFace)));
}

}  // namespace vexel::test
