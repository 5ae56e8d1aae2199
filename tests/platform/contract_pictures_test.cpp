#include "tests/platform/contract_bench.h"

#include "vexel/platform/border.h"
#include "vexel/platform/xpm.h"

// Pictures of the backend, raster operations, borders and native parts.

namespace vexelbase::tests
{

namespace
{

class ContractPicture : public CContractPaintTest
{};
class ContractParts : public CContractPaintTest
{
protected:
    /// A palette with light black, half-light yellow, face green, shadow blue and dark shadow red.
    static vexel_ptr<ICustomPaletteEx> Palette()
    {
        vexel_ptr<ICustomPaletteEx> palette = CreateCustomPalette();
        palette->SetColor(ISysPalette::scFace, Green);
        palette->SetColor(ISysPalette::scLight, Black);
        palette->SetColor(ISysPalette::scHalfLight, Yellow);
        palette->SetColor(ISysPalette::scShadow, Blue);
        palette->SetColor(ISysPalette::scDarkShadow, Red);
        return palette;
    }
};

std::string TextOf(IRasterPicture& picture)
{
    return ReadText(*picture.GetPainter(), picture.GetSize());
}

}  // namespace

// Made -------------------------------------------------------------------------------------------------------------

TEST_F(ContractPicture, IsWhiteAtFirstAndAsLargeAsAskedFor)
{
    vexel_ptr<IRasterPicture> const picture = System().CreateRasterPicture({3, 2});
    EXPECT_EQ(picture->GetSize(), (size<int>{3, 2}));
    EXPECT_EQ(TextOf(*picture), "...\n...\n");
    EXPECT_EQ(picture->GetPainter(), picture->GetPainter());
}

TEST_F(ContractPicture, MayBeEmpty)
{
    vexel_ptr<IRasterPicture> const empty = System().CreateRasterPicture(size<int>{0, 0});
    EXPECT_EQ(empty->GetSize(), (size<int>{0, 0}));
    EXPECT_EQ(System().CreateRasterPicture({-3, 5})->GetSize().width, 0);
    IPainter& painter = *empty->GetPainter();
    painter.BeginPaint(IPainter::ssPaint);
    painter.FillRect(0, 0, 5, 5);
    painter.DrawString({0, 0, 9, 9}, "text", 0, -1);
    painter.EndPaint();
    EXPECT_EQ(painter.GetPixel(0, 0).m_Value, 0xFFFFFFFFu);
    OnEachPainter([&](IPainter& target) {
        target.DrawRasterPicture(empty.get(), 0, 0, 9, 9, IPainter::roCopy);
        target.DrawRasterPictureEx(empty.get(), 0, 0, 9, 9, 0, 0, 0, 0, IPainter::roCopy);
        target.AlphaBlend(0, 0, 9, 9, empty.get(), 255);
        target.DrawRasterPicture(nullptr, 0, 0, 9, 9, IPainter::roCopy);
        target.ExtractRasterPicture(nullptr, 0, 0, 9, 9);
        target.ExtractRasterPicture(empty.get(), 0, 0, 9, 9);
        EXPECT_EQ(ReadText(target, {3, 1}), "...\n");
    });
}

TEST_F(ContractPicture, FromXpmTextHasItsPixelsAtAnyScaleAndWhiteForTransparentOnes)
{
    static char const* xpm[] = {"3 2 3 1", "  c None", "r c #FF0000", "# c #000000", "r #", "##r"};
    for (double const scale : {1.0, 1.5, 2.0})
    {
        Bench().SetScale(scale);
        EXPECT_EQ(TextOf(*System().CreateRasterPicture(XPMBuf(xpm, true))), "r.#\n##r\n");
    }
}

TEST_F(ContractPicture, ACopyIsAnotherPicture)
{
    vexel_ptr<IRasterPicture> const first = MakeSystemPicture("rg\nbb\n");
    vexel_ptr<IRasterPicture> const copy = first->Copy();
    first->GetPainter()->SetPixel(0, 0, Black);
    EXPECT_EQ(TextOf(*copy), "rg\nbb\n");
    EXPECT_EQ(TextOf(*first), "#g\nbb\n");
}

TEST_F(ContractPicture, ScalesByTheNearestPixel)
{
    vexel_ptr<IRasterPicture> const picture = MakeSystemPicture("rgb\n#yc\n");
    EXPECT_EQ(TextOf(*picture->Scale({6, 4})), "rrggbb\nrrggbb\n##yycc\n##yycc\n");
    EXPECT_EQ(TextOf(*picture->Scale({1, 1})), "y\n");  // the middle: column 1.5, row 1
    EXPECT_EQ(TextOf(*picture->Scale({3, 1})), "#yc\n");
    EXPECT_EQ(picture->Scale({0, 4})->GetSize(), (size<int>{0, 0}));
    EXPECT_EQ(TextOf(*picture), "rgb\n#yc\n");
}

// Drawn ------------------------------------------------------------------------------------------------------------

TEST_F(ContractPicture, IsDrawnOneToOneAndTheRectangleOnlyLimits)
{
    vexel_ptr<IRasterPicture> const picture = MakeSystemPicture("rgb\n#yc\n");
    ExpectDrawn(
        [&](IPainter& painter) {
            painter.DrawRasterPicture(picture.get(), 1, 0, 20, 20, IPainter::roCopy);
            painter.DrawRasterPicture(picture.get(), 5, 0, 6, 0, IPainter::roCopy);
            painter.DrawRasterPicture(picture.get(), 10, 4, 8, 3, IPainter::roCopy);  // ordered first
            painter.DrawRasterPicture(picture.get(), -1, 3, 20, 3, IPainter::roCopy);
        },
        ".rgb.rg....\n"
        ".#yc.......\n"
        "...........\n"
        "gb......rgb\n"
        "........#yc\n");
}

TEST_F(ContractPicture, IsXoredAndAndedExactly)
{
    vexel_ptr<IRasterPicture> const picture = MakeSystemPicture(".#rgb\n");
    ExpectDrawn(
        [&](IPainter& painter) {
            painter.SetBrush(BrushOf(Yellow));
            painter.FillRect(0, 2, 4, 3);
            for (int y = 0; y < 4; ++y)
                painter.DrawRasterPicture(picture.get(), 0, y, 9, 9, y % 2 == 0 ? IPainter::roXor : IPainter::roAnd);
        },
        // white xored: inverted picture; white anded: the picture; yellow (red and green) likewise
        "#.cmy\n"
        ".#rgb\n"
        "bygr.\n"
        "y#rg#\n");
}

TEST_F(ContractPicture, XorAndXorShowsAPictureThroughAMask)
{
    vexel_ptr<IRasterPicture> const picture = MakeSystemPicture("rgb\nbrg\n");
    vexel_ptr<IRasterPicture> const mask = MakeSystemPicture("#.#\n.#.\n");
    ExpectDrawn(
        [&](IPainter& painter) {
            painter.SetBrush(BrushOf(Yellow));
            painter.FillRect(0, 0, 4, 3);
            painter.DrawRasterPicture(picture.get(), 1, 1, 3, 2, IPainter::roXor);
            painter.DrawRasterPicture(mask.get(), 1, 1, 3, 2, IPainter::roAnd);
            painter.DrawRasterPicture(picture.get(), 1, 1, 3, 2, IPainter::roXor);
        },
        "yyyyy\n"
        "yryby\n"
        "yyryy\n"
        "yyyyy\n");
}

TEST_F(ContractPicture, IsStretchedByTheRatioOfThePixelCounts)
{
    vexel_ptr<IRasterPicture> const picture = MakeSystemPicture("rgb\n#yc\n");
    ExpectDrawn(
        [&](IPainter& painter) {
            painter.DrawRasterPictureEx(picture.get(), 0, 0, 5, 3, 0, 0, 2, 1, IPainter::roCopy);
            painter.DrawRasterPictureEx(picture.get(), 7, 0, 10, 0, 1, 1, 2, 1, IPainter::roCopy);  // a part
            painter.DrawRasterPictureEx(picture.get(), 7, 2, 9, 3, 1, 0, 3, 1, IPainter::roCopy);   // one column beyond
            painter.DrawRasterPictureEx(picture.get(), 13, 1, 12, 0, 1, 1, 0, 0, IPainter::roCopy);  // never mirrored
        },
        "rrggbb.yycc.rg\n"
        "rrggbb......#y\n"
        "##yycc.gb.....\n"
        "##yycc.yc.....\n");
}

TEST_F(ContractPicture, StretchedIsXoredAndAndedToo)
{
    vexel_ptr<IRasterPicture> const picture = MakeSystemPicture("rb\n");
    ExpectDrawn(
        [&](IPainter& painter) {
            painter.DrawRasterPictureEx(picture.get(), 0, 0, 3, 0, 0, 0, 1, 0, IPainter::roXor);
            painter.DrawRasterPictureEx(picture.get(), 0, 1, 3, 1, 0, 0, 1, 0, IPainter::roAnd);
        },
        "ccyy\n"
        "rrbb\n");
}

TEST_F(ContractPicture, AlphaBlendsInWholeNumbers)
{
    vexel_ptr<IRasterPicture> const red = MakeSystemPicture("rr\n");
    OnEachPainter([&](IPainter& painter) {
        auto const blended = [&](int alpha) {
            painter.SetBrush(BrushOf(_color::FromRgb(0, 100, 200)));
            painter.FillRect(0, 0, 5, 0);
            painter.AlphaBlend(1, 0, 9, 9, red.get(), alpha);
            EXPECT_EQ(painter.GetPixel(0, 0).m_Value & 0xFFFFFFu, 0xC86400u);
            EXPECT_EQ(painter.GetPixel(3, 0).m_Value & 0xFFFFFFu, 0xC86400u);
            EXPECT_EQ(painter.GetPixel(2, 0), painter.GetPixel(1, 0));
            return painter.GetPixel(1, 0).m_Value & 0xFFFFFFu;
        };
        EXPECT_EQ(blended(70), 0x914846u);   // 70; 100 * 185 / 255 = 72.5; 200 * 185 / 255 = 145.1
        EXPECT_EQ(blended(127), 0x64327Fu);  // 127; 50.2; 100.4
        EXPECT_EQ(blended(255), 0x0000FFu);
        EXPECT_EQ(blended(0), 0xC86400u);
        EXPECT_EQ(blended(1000), 0x0000FFu);  // counts as 255
        EXPECT_EQ(blended(-1), 0xC86400u);
    });
}

TEST_F(ContractPicture, TakesPixelsFromTheSurface)
{
    OnEachPainter([&](IPainter& painter) {
        vexel_ptr<IRasterPicture> const ground = MakeSystemPicture("rgb\n#yc\n");
        painter.DrawRasterPicture(ground.get(), 0, 0, 9, 9, IPainter::roCopy);
        vexel_ptr<IRasterPicture> const taken = MakeSystemPicture("mmmm\nmmmm\nmmmm\n");
        painter.ExtractRasterPicture(taken.get(), 1, 0, 2, 1);
        EXPECT_EQ(TextOf(*taken), "gbmm\nycmm\nmmmm\n");
        painter.ExtractRasterPicture(taken.get(), -1, -1, 20, 0);  // from outside nothing comes
        EXPECT_EQ(TextOf(*taken), "gbmm\nyrgb\nmmmm\n");
        vexel_ptr<IRasterPicture> const stretched = MakeSystemPicture("mmmm\nmmmm\n");
        painter.ExtractRasterPictureEx(stretched.get(), 0, 0, 1, 0, 0, 1, 3, 1);
        EXPECT_EQ(TextOf(*stretched), "mmmm\nrrgg\n");
    });
}

TEST_F(ContractPicture, MayBeDrawnOntoItself)
{
    for (int way = 0; way < 3; ++way)
    {
        vexel_ptr<IRasterPicture> const picture = MakeSystemPicture("rgb#\n....\n");
        IPainter& painter = *picture->GetPainter();
        painter.BeginPaint(IPainter::ssPaint);
        if (way == 0)
            painter.DrawRasterPicture(picture.get(), 1, 0, 3, 1, IPainter::roCopy);
        else if (way == 1)
            painter.DrawRasterPictureEx(picture.get(), 0, 0, 3, 0, 0, 0, 1, 0, IPainter::roCopy);
        else
            painter.ExtractRasterPicture(picture.get(), 1, 0, 3, 0);
        painter.EndPaint();
        char const* const expected[] = {"rrgb\n....\n", "rrgg\n....\n", "gb##\n....\n"};
        EXPECT_EQ(TextOf(*picture), expected[way]) << way;
    }
}

TEST_F(ContractPicture, IsGreyWhereTheElementIsDisabledAndKeepsItsColours)
{
    vexel_ptr<IRasterPicture> const picture = MakeSystemPicture(".#rgb\n");
    OnEachPainter([&](IPainter& painter) {
        painter.m_DisabledMode = true;
        painter.DrawRasterPicture(picture.get(), 0, 0, 9, 0, IPainter::roCopy);
        painter.DrawRasterPictureEx(picture.get(), 0, 1, 4, 1, 0, 0, 4, 0, IPainter::roCopy);
        painter.SetBrush(BrushOf(White));
        painter.AlphaBlend(0, 2, 9, 2, picture.get(), 255);
        painter.m_DisabledMode = false;
        // 77 * 255 / 256 = 76.7, 150 * 255 / 256 = 149.4, 29 * 255 / 256 = 28.9
        unsigned const expected[] = {0xFFFFFFu, 0x000000u, 0x4C4C4Cu, 0x959595u, 0x1C1C1Cu};
        for (int y = 0; y < 3; ++y)
        {
            for (int x = 0; x < 5; ++x)
                EXPECT_EQ(painter.GetPixel(x, y).m_Value & 0xFFFFFFu, expected[x]) << x << ' ' << y;
        }
    });
    EXPECT_EQ(TextOf(*picture), ".#rgb\n");
}

TEST_F(ContractPicture, OfXpmTextIsDrawnAtTheScaleAndTransparentWhereItSaysSo)
{
    static char const* xpm[] = {"3 2 3 1", "  c None", "r c #FF0000", "# c #000000", "r #", "##r"};
    XPMImage const image{XPMBuf(xpm, true)};
    EXPECT_EQ(image.GetWidth(), 3);
    EXPECT_EQ(image.GetHeight(), 2);
    OnEachPainter([&](IPainter& painter) {
        double const scale = painter.GetDPIScale();
        int const width = static_cast<int>(3 * scale);
        int const height = static_cast<int>(2 * scale);
        painter.SetBrush(BrushOf(Yellow));
        painter.FillRect(0, 0, 119, 119);
        painter.DrawXPM(image, 10, 20, 0, 0, -1, -1, IPainter::roCopy);
        for (int y = 0; y < 40; ++y)
        {
            for (int x = 0; x < 40; ++x)
            {
                _color expected = Yellow;
                if (x >= 10 && x < 10 + width && y >= 20 && y < 20 + height)
                    expected = image.GetPixel((x - 10) * 3 / width, (y - 20) * 2 / height);
                if (expected.m_None)
                    expected = Yellow;
                ASSERT_EQ(painter.GetPixel(x, y).m_Value & 0xFFFFFFu, expected.m_Value & 0xFFFFFFu) << x << ' ' << y;
            }
        }
        painter.DrawXPM(image, 60, 60, 1, 1, 1, 1, IPainter::roCopy);  // the black in the middle below
        EXPECT_EQ(painter.GetPixel(60, 60).m_Value & 0xFFFFFFu, 0u);
        EXPECT_EQ(painter.GetPixel(60 + static_cast<int>(scale), 60).m_Value & 0xFFFFFFu, 0x00FFFFu);
        EXPECT_EQ(painter.GetPixel(59, 60).m_Value & 0xFFFFFFu, 0x00FFFFu);
    });
}

// Borders ----------------------------------------------------------------------------------------------------------

TEST_F(ContractParts, ABoxHasTwoLinesWhereItIsRaisedOrSunken)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.m_Palette = Palette();
            DrawBorder(&painter, {0, 0, 4, 3}, bsBox, bsRaised, true);
            DrawBorder(&painter, {6, 0, 10, 3}, bsBox, bsSunken, true);
            DrawBorder(&painter, {12, 0, 16, 3}, bsBox, bsFlat, true);
        },
        "####r.rrrr#.bbbbb\n"
        "#ggbr.rbbb#.bgggb\n"
        "#bbbr.rbgg#.bgggb\n"
        "rrrrr.#####.bbbbb\n");
}

TEST_F(ContractParts, AThinBoxHasOneLineAndAFrameIsNeverFilled)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.m_Palette = Palette();
            DrawBorder(&painter, {0, 0, 3, 2}, bsThinBox, bsRaised, true);
            DrawBorder(&painter, {5, 0, 8, 2}, bsThinBox, bsSunken, false);
            DrawBorder(&painter, {10, 0, 13, 2}, bsFrame, bsFlat, true);
        },
        "###r.rrr#.bbbb\n"
        "#ggr.r..#.b..b\n"
        "rrrr.####.bbbb\n");
}

TEST_F(ContractParts, OpenShapesAreOneLine)
{
    ExpectDrawn(
        [](IPainter& painter) {
            painter.m_Palette = Palette();
            DrawBorder(&painter, {0, 0, 2, 2}, bsTopLine, bsFlat, true);
            DrawBorder(&painter, {4, 0, 6, 2}, bsBottomLine, bsRaised, true);
            DrawBorder(&painter, {8, 0, 10, 2}, bsLeftLine, bsRaised, true);
            DrawBorder(&painter, {12, 0, 14, 2}, bsRightLine, bsSunken, true);
            DrawBorder(&painter, {16, 0, 18, 2}, bsNothing, bsRaised, true);
            DrawBorder(nullptr, {16, 0, 18, 2}, bsBox, bsRaised, true);
        },
        "bbb.....#.....#....\n"
        "........#.....#....\n"
        "....rrr.#.....#....\n");
}

TEST_F(ContractParts, ABorderLeavesPenAndBrushAlone)
{
    OnEachPainter([](IPainter& painter) {
        painter.SetPen(PenOf(Red, pen::psDot, 3));
        painter.SetBrush(BrushOf(Blue));
        DrawBorder(&painter, {0, 0, 9, 9}, bsBox, bsSunken, true);
        EXPECT_EQ(painter.GetPen(), PenOf(Red, pen::psDot, 3));
        EXPECT_EQ(painter.GetBrush(), BrushOf(Blue));
        // Without a palette of the painter's own the system's colours count.
        EXPECT_EQ(painter.GetPixel(5, 5), GetSysPalette()->GetColor(ISysPalette::scFace));
        EXPECT_EQ(painter.GetPixel(0, 0), GetSysPalette()->GetColor(ISysPalette::scDarkShadow));
        EXPECT_EQ(painter.GetPixel(9, 9), GetSysPalette()->GetColor(ISysPalette::scLight));
    });
}

TEST_F(ContractParts, CoverTheirWholeRectangleAndNoMore)
{
    OnEachPainter([](IPainter& painter) {
        for (int const element : {0, 7, 8, 9})
        {
            for (int const state : {0, 1, 2, 4, 8, 10})
            {
                // Drawn over two grounds: what is covered comes out alike.
                CPixelBuffer drawn[2];
                for (int turn = 0; turn < 2; ++turn)
                {
                    painter.SetBrush(BrushOf(turn == 0 ? White : Magenta));
                    painter.FillRect(0, 0, 69, 49);
                    painter.DrawControlElement(static_cast<IPainter::ControlElement>(element), 10, 10, 49, 33, state);
                    drawn[turn] = ReadPixels(painter, {70, 50});
                }
                for (int y = 0; y < 50; ++y)
                {
                    for (int x = 0; x < 70; ++x)
                    {
                        bool const inside = x >= 10 && x <= 49 && y >= 10 && y <= 33;
                        ASSERT_EQ(drawn[0].Row(y)[x] == drawn[1].Row(y)[x], inside)
                            << element << ' ' << state << ' ' << x << ' ' << y;
                    }
                }
            }
        }
    });
}

// Palettes ---------------------------------------------------------------------------------------------------------

TEST_F(ContractParts, TheSystemKnowsThirteenColours)
{
    ASSERT_TRUE(GetSysPalette());
    for (int i = 1; i <= 13; ++i)
    {
        _color const color = GetSysPalette()->GetColor(static_cast<ISysPalette::SysColor>(i));
        EXPECT_FALSE(color.m_None) << i;
        EXPECT_EQ(color.Alpha(), 255) << i;
        EXPECT_EQ(GetDefaultPalette()->GetColor(static_cast<ISysPalette::SysColor>(i)), color) << i;
        EXPECT_EQ(CreateCustomPalette()->GetColor(static_cast<ISysPalette::SysColor>(i)), color) << i;
    }
    EXPECT_TRUE(GetSysPalette()->GetColor(ISysPalette::scLiteral).m_None);
    EXPECT_TRUE(GetSysPalette()->GetColor(static_cast<ISysPalette::SysColor>(0)).m_None);
    EXPECT_TRUE(GetSysPalette()->GetColor(static_cast<ISysPalette::SysColor>(-1)).m_None);
    EXPECT_TRUE(GetSysPalette()->GetColor(static_cast<ISysPalette::SysColor>(99)).m_None);
}

TEST_F(ContractParts, TextColoursCanBeReadOnTheirGrounds)
{
    auto const grey = [](ISysPalette::SysColor number) {
        _color const color = GetSysPalette()->GetColor(number);
        return (77 * color.Red() + 150 * color.Green() + 29 * color.Blue()) / 256;
    };
    EXPECT_GT(std::abs(grey(ISysPalette::scWindow) - grey(ISysPalette::scWindowText)), 60);
    EXPECT_GT(std::abs(grey(ISysPalette::scFace) - grey(ISysPalette::scControlText)), 60);
    EXPECT_GT(std::abs(grey(ISysPalette::scHighlight) - grey(ISysPalette::scHighlightText)), 60);
    EXPECT_GT(std::abs(grey(ISysPalette::scTooltip) - grey(ISysPalette::scTooltipText)), 60);
    EXPECT_GT(std::abs(grey(ISysPalette::scFace) - grey(ISysPalette::scShadow)), 20);
}

TEST_F(ContractParts, ABaseColourGivesAPaletteItsEdges)
{
    vexel_ptr<ICustomPaletteEx> const palette = CreateCustomPalette();
    EXPECT_TRUE(palette->GetBaseColor().m_None);
    palette->SetBaseColor(_color::FromRgb(100, 150, 200));
    EXPECT_EQ(palette->GetBaseColor(), _color::FromRgb(100, 150, 200));
    EXPECT_EQ(palette->GetColor(ISysPalette::scFace), _color::FromRgb(100, 150, 200));
    EXPECT_EQ(palette->GetColor(ISysPalette::scLight), _color::FromRgb(224, 234, 244));      // 155, 105, 55 * 0.8
    EXPECT_EQ(palette->GetColor(ISysPalette::scHalfLight), _color::FromRgb(162, 192, 222));  // the same * 0.4
    EXPECT_EQ(palette->GetColor(ISysPalette::scShadow), _color::FromRgb(65, 98, 130));       // 35, 52, 70 less
    EXPECT_EQ(palette->GetColor(ISysPalette::scDarkShadow), _color::FromRgb(35, 53, 70));    // 65, 97, 130 less
    EXPECT_EQ(palette->GetColor(ISysPalette::scWindow), GetSysPalette()->GetColor(ISysPalette::scWindow));
    palette->SetBaseColor(NoColor);
    EXPECT_EQ(palette->GetColor(ISysPalette::scFace), GetSysPalette()->GetColor(ISysPalette::scFace));
}

}  // namespace vexelbase::tests
