#include "tests/platform/contract_bench.h"

#include <algorithm>
#include <sstream>

namespace vexelbase::tests
{

CContractBench::~CContractBench() = default;

// CEar -------------------------------------------------------------------------------------------------------------

std::string CEar::Take()
{
    std::string result;
    result.swap(m_Log);
    return result;
}

void CEar::Note(std::string const& word)
{
    if (!m_Log.empty())
        m_Log += ' ';
    m_Log += word;
}

void CEar::Told(std::string const& word)
{
    Note(word);
    std::function<void(std::string const&)> const after = m_After;
    if (after)
        after(word);
}

void CEar::OnDraw(IPainter* painter)
{
    ++m_Draws;
    m_WasFull = painter->IsFullPaint();
    painter->BeginPaint(IPainter::ssPaint);
    if (m_Draw)
        m_Draw(*painter);
    painter->EndPaint();
}

void CEar::Mouse(char const* name, CMouseEvent const& event)
{
    std::ostringstream text;
    text << name << '(' << event.m_X << ',' << event.m_Y << ",0x" << std::hex << event.m_Keys << std::dec << ','
         << event.m_Button << ')';
    Told(text.str());
}

void CEar::OnWheel(CMouseWheelEvent* event)
{
    std::ostringstream text;
    text << "wheel(" << event->m_X << ',' << event->m_Y << ',' << event->m_Delta << ')';
    Told(text.str());
}

void CEar::OnKeyDown(CKeyboardEvent* event)
{
    std::ostringstream text;
    text << "keydown(" << event->GetVirtualKey() << ",0x" << std::hex << event->m_Keys << ')';
    if (m_KeyDown)
        m_KeyDown(*event);
    Told(text.str());
}

void CEar::OnKeyUp(CKeyboardEvent* event)
{
    std::ostringstream text;
    text << "keyup(" << event->GetVirtualKey() << ",0x" << std::hex << event->m_Keys << ')';
    Told(text.str());
}

void CEar::OnChar(CKeyboardEvent* event)
{
    std::ostringstream text;
    text << "char(" << std::hex << static_cast<int>(static_cast<unsigned char>(event->GetCharacterCode())) << ')';
    Told(text.str());
}

void CEar::OnResize(CWindowEvent*)
{
    std::ostringstream text;
    text << "resize(" << GetWindow()->GetRect().right << ',' << GetWindow()->GetRect().bottom << ')';
    Told(text.str());
}

void CEar::OnCustomEvent(CCustomEvent* event)
{
    std::string const word = "custom(" + std::to_string(event->m_Id) + ')';
    delete event;
    Told(word);
}

// CContractWindowTest ----------------------------------------------------------------------------------------------

CContractWindowTest::CContractWindowTest()
{
    m_Window = Bench().MakeWindow({60, 30}, {120, 120});
    m_Ear = std::make_unique<CEar>(m_Window.get());
    Bench().Settle();
    m_Ear->Take();
}

// Pixels -----------------------------------------------------------------------------------------------------------

CPixelBuffer ReadPixels(IPainter& painter, size<int> const& extent)
{
    CPixelBuffer pixels(extent);
    for (int y = 0; y < extent.height; ++y)
    {
        for (int x = 0; x < extent.width; ++x)
            pixels.Row(y)[x] = CPixelBuffer::ToPixel(painter.GetPixel(x, y));
    }
    return pixels;
}

std::string ReadText(IPainter& painter, size<int> const& extent)
{
    return ToText(ReadPixels(painter, extent));
}

vexel_ptr<IRasterPicture> MakeSystemPicture(std::string const& text)
{
    vexel_ptr<IRasterPicture> const drawn = MakePicture(text);
    vexel_ptr<IRasterPicture> picture = GetCurrentSystem()->CreateRasterPicture(drawn->GetSize());
    IPainter& painter = *picture->GetPainter();
    painter.BeginPaint(IPainter::ssPaint);
    for (int y = 0; y < drawn->GetSize().height; ++y)
    {
        for (int x = 0; x < drawn->GetSize().width; ++x)
            painter.SetPixel(x, y, CPixelBuffer::ToColor(drawn->GetPixels().Row(y)[x]));
    }
    painter.EndPaint();
    return picture;
}

// CContractPaintTest -----------------------------------------------------------------------------------------------

void CContractPaintTest::OnEachPainter(Draw const& draw)
{
    auto const onWhite = [&](IPainter& painter) {
        painter.SetBrush(BrushOf(White));
        painter.FillRect(0, 0, Extent.width - 1, Extent.height - 1);
        painter.SetBrush(NoBrush);
        draw(painter);
    };
    for (double const scale : {1.0, 1.25, 1.5, 2.0})
    {
        Bench().SetScale(scale);
        SCOPED_TRACE("at scale " + std::to_string(scale));
        {
            SCOPED_TRACE("on a picture");
            vexel_ptr<IRasterPicture> const picture = System().CreateRasterPicture(Extent);
            picture->GetPainter()->BeginPaint(IPainter::ssPaint);
            onWhite(*picture->GetPainter());
            picture->GetPainter()->EndPaint();
        }
        {
            SCOPED_TRACE("in a window");
            ASSERT_EQ(Window().GetRect(), (rectangle<int>{0, 0, Extent.width, Extent.height}));
            int const before = Ear().m_Draws;
            Ear().m_Draw = onWhite;
            Window().UpdateNow();
            Ear().m_Draw = nullptr;
            ASSERT_EQ(Ear().m_Draws, before + 1);
        }
    }
    Bench().SetScale(1.0);
}

void CContractPaintTest::ExpectDrawn(Draw const& draw, std::string const& text)
{
    int const width = static_cast<int>(text.find('\n'));
    int const height = static_cast<int>(std::count(text.begin(), text.end(), '\n'));
    OnEachPainter([&](IPainter& painter) {
        draw(painter);
        painter.SetCoordSystem(IPainter::mmDevice, nullptr);
        EXPECT_EQ(ReadText(painter, {width, height}), text);
    });
}

}  // namespace vexelbase::tests
