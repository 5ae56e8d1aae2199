#include "vexel/platform/qt/detail/native_parts.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/qt/detail/qt_device.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>

namespace vexelbase::qt
{

namespace
{

QStyle::State ToQtState(int state)
{
    QStyle::State result = QStyle::State_Active;
    if ((state & IPainter::esDisabled) == 0)
        result |= QStyle::State_Enabled;
    if ((state & IPainter::esFocused) != 0)
        result |= QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    if ((state & IPainter::esHot) != 0)
        result |= QStyle::State_MouseOver;
    result |= (state & IPainter::esPressed) != 0 ? QStyle::State_Sunken : QStyle::State_Raised;
    return result;
}

void Prepare(QStyleOption& option, QRect const& rect, int state)
{
    option.rect = rect;
    option.state = ToQtState(state);
    option.palette = QApplication::palette();
    option.palette.setCurrentColorGroup((state & IPainter::esDisabled) != 0 ? QPalette::Disabled : QPalette::Active);
    option.direction = Qt::LeftToRight;
}

// A button with the arrow that opens a list.
void DrawArrowButton(QStyle* style, QPainter& painter, QRect const& rect, int state)
{
    QStyleOptionButton button;
    Prepare(button, rect, state);
    style->drawControl(QStyle::CE_PushButtonBevel, &button, &painter);

    QStyleOption arrow;
    Prepare(arrow, rect, state);
    int const side = std::max(1, std::min({rect.width(), rect.height(), 12}));
    arrow.rect = QRect(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2, side, side);
    arrow.palette.setColor(QPalette::WindowText, arrow.palette.color(QPalette::ButtonText));
    arrow.palette.setColor(QPalette::Text, arrow.palette.color(QPalette::ButtonText));
    style->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter);
}

void DrawMark(QStyle* style, QStyle::PrimitiveElement part, bool checked, QPainter& painter, QRect const& rect,
              int state)
{
    QStyleOptionButton option;
    Prepare(option, rect, state);
    option.state |= checked ? QStyle::State_On : QStyle::State_Off;
    option.state &= ~QStyle::State_Raised;
    style->drawPrimitive(part, &option, &painter);
}

void DrawPart(QStyle* style, IPainter::ControlElement element, QPainter& painter, QRect const& rect, int state)
{
    switch (element)
    {
    case IPainter::ceHeaderSection:
    {
        QStyleOptionHeader option;
        Prepare(option, rect, state);
        option.orientation = Qt::Horizontal;
        option.position = QStyleOptionHeader::Middle;
        style->drawControl(QStyle::CE_HeaderSection, &option, &painter);
        break;
    }
    case IPainter::ceCheckChecked:
    case IPainter::ceCheckUnchecked:
        DrawMark(style, QStyle::PE_IndicatorCheckBox, element == IPainter::ceCheckChecked, painter, rect, state);
        break;
    case IPainter::ceRadioChecked:
    case IPainter::ceRadioUnchecked:
        DrawMark(style, QStyle::PE_IndicatorRadioButton, element == IPainter::ceRadioChecked, painter, rect, state);
        break;
    case IPainter::ceComboArrow:
    case IPainter::ceDropArrow:
        DrawArrowButton(style, painter, rect, state);
        break;
    case IPainter::cePushButton:
    default:
    {
        QStyleOptionButton option;
        Prepare(option, rect, state);
        style->drawControl(QStyle::CE_PushButtonBevel, &option, &painter);
        break;
    }
    }
}

}  // namespace

void CNativeParts::Draw(QImage& image, rectangle<int> const& area, IPainter::ControlElement element, int state,
                        double ratio)
{
    if (!qApp || image.isNull() || area.IsEmpty())
        return;
    image.setDevicePixelRatio(ratio);
    QPainter painter(&image);
    painter.setClipping(false);
    painter.translate(area.left / ratio, area.top / ratio);

    // The style works in Qt's pixels. Where their number is no whole one the part is drawn a little smaller, so that
    // its far edges do not fall off.
    constexpr double slack = 0.01;
    QRect const rect(0, 0, std::max(1, CeilToInt(area.Width() / ratio - slack)),
                     std::max(1, CeilToInt(area.Height() / ratio - slack)));
    painter.scale(area.Width() / ratio / rect.width(), area.Height() / ratio / rect.height());
    painter.fillRect(rect, QApplication::palette().color(QPalette::Window));
    DrawPart(QApplication::style(), element, painter, rect, state);
}

CNativeParts& CNativeParts::Get()
{
    static CNativeParts* const parts = new CNativeParts;  // holds nothing of Qt; never destroyed
    return *parts;
}

void CNativeParts::Clear()
{
    m_Pictures.clear();
    m_Order.clear();
    m_Bytes = 0;
}

CPixelBuffer const& CNativeParts::GetPicture(IPainter::ControlElement element, size<int> const& extent, int state,
                                             double ratio)
{
    Key const key(element, extent.width, extent.height, state, ratio);
    auto const found = m_Pictures.find(key);
    if (found != m_Pictures.end())
    {
        m_Order.splice(m_Order.begin(), m_Order, found->second.order);
        return found->second.pixels;
    }

    auto const bytesOf = [](size<int> const& area) {
        return static_cast<std::size_t>(area.width) * static_cast<std::size_t>(area.height) * sizeof(std::uint32_t);
    };
    while (!m_Order.empty() && (m_Order.size() >= MaxPictures || m_Bytes > MaxBytes))
    {
        auto const oldest = m_Pictures.find(m_Order.back());
        m_Bytes -= bytesOf(oldest->second.pixels.GetSize());
        m_Pictures.erase(oldest);
        m_Order.pop_back();
    }
    m_Order.push_front(key);
    SPicture& picture = m_Pictures[key];
    picture.order = m_Order.begin();
    picture.pixels.Resize(extent, 0xFFFFFFFFu);
    m_Bytes += bytesOf(extent);
    QImage image = ViewPixels(picture.pixels);
    Draw(image, {0, 0, extent.width, extent.height}, element, state, ratio);
    return picture.pixels;
}

}  // namespace vexelbase::qt
