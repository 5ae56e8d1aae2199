#include "vexel/platform/qt/detail/native_parts.h"

#include "vexel/platform/convert.h"
#include "vexel/platform/qt/detail/qt_device.h"

#include <QApplication>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QScreen>
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

// What one drawing is about.
struct SPart
{
    QStyle* style;
    QPainter& painter;
    QRect rect;
    int state;
    double zoom;
    QFontMetrics metrics;  // tells the style of the zoom
};

void Prepare(QStyleOption& option, SPart const& part)
{
    QRect const& rect = part.rect;
    int const state = part.state;
    option.fontMetrics = part.metrics;
    option.rect = rect;
    option.state = ToQtState(state);
    option.palette = QApplication::palette();
    option.palette.setCurrentColorGroup((state & IPainter::esDisabled) != 0 ? QPalette::Disabled : QPalette::Active);
    option.direction = Qt::LeftToRight;
}

// A button with the arrow that opens a list.
void DrawArrowButton(SPart const& part)
{
    QStyleOptionButton button;
    Prepare(button, part);
    part.style->drawControl(QStyle::CE_PushButtonBevel, &button, &part.painter);

    QStyleOption arrow;
    Prepare(arrow, part);
    QRect const& rect = part.rect;
    int const side = std::max(1, std::min({rect.width(), rect.height(), ToInt(12 * part.zoom)}));
    arrow.rect = QRect(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2, side, side);
    arrow.palette.setColor(QPalette::WindowText, arrow.palette.color(QPalette::ButtonText));
    arrow.palette.setColor(QPalette::Text, arrow.palette.color(QPalette::ButtonText));
    part.style->drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &part.painter);
}

void DrawMark(SPart const& part, QStyle::PrimitiveElement mark, bool checked)
{
    QStyleOptionButton option;
    Prepare(option, part);
    option.state |= checked ? QStyle::State_On : QStyle::State_Off;
    option.state &= ~QStyle::State_Raised;
    part.style->drawPrimitive(mark, &option, &part.painter);
}

// Some styles have headers that look alike whether pointed at, pressed or neither: then a veil tells.
void DrawHeader(SPart const& part)
{
    QStyleOptionHeader option;
    Prepare(option, part);
    option.orientation = Qt::Horizontal;
    option.position = QStyleOptionHeader::Middle;
    part.style->drawControl(QStyle::CE_HeaderSection, &option, &part.painter);
    int const marks = IPainter::esHot | IPainter::esPressed;
    if ((part.state & marks) == 0 || (part.state & IPainter::esDisabled) != 0)
        return;

    auto const render = [&](int state) {
        QImage image(part.rect.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        SPart other{part.style, painter, part.rect, state, part.zoom, part.metrics};
        Prepare(option, other);
        part.style->drawControl(QStyle::CE_HeaderSection, &option, &painter);
        painter.end();
        return image;
    };
    if (render(part.state) != render(part.state & ~marks))
        return;
    bool const pressed = (part.state & IPainter::esPressed) != 0;
    QColor veil = option.palette.color(pressed ? QPalette::Shadow : QPalette::Highlight);
    veil.setAlpha(pressed ? 50 : 30);
    part.painter.fillRect(part.rect, veil);
}

void DrawPart(SPart const& part, IPainter::ControlElement element)
{
    switch (element)
    {
    case IPainter::ceHeaderSection:
        DrawHeader(part);
        break;
    case IPainter::ceCheckChecked:
    case IPainter::ceCheckUnchecked:
        DrawMark(part, QStyle::PE_IndicatorCheckBox, element == IPainter::ceCheckChecked);
        break;
    case IPainter::ceRadioChecked:
    case IPainter::ceRadioUnchecked:
        DrawMark(part, QStyle::PE_IndicatorRadioButton, element == IPainter::ceRadioChecked);
        break;
    case IPainter::ceComboArrow:
    case IPainter::ceDropArrow:
        DrawArrowButton(part);
        break;
    case IPainter::cePushButton:
    default:
    {
        QStyleOptionButton option;
        Prepare(option, part);
        part.style->drawControl(QStyle::CE_PushButtonBevel, &option, &part.painter);
        break;
    }
    }
}

// Fonts measured for it have so many times the dots of the desktop's.
QFontMetrics GetZoomedMetrics(double zoom)
{
    if (zoom == 1.0)
        return QFontMetrics(QApplication::font());
    QScreen const* const screen = QGuiApplication::primaryScreen();
    constexpr double inchesOfMeter = 1000 / 25.4;
    int const dots = ToInt((screen ? screen->logicalDotsPerInchX() : 96.0) * zoom * inchesOfMeter + 0.5);
    QImage device(1, 1, QImage::Format_RGB32);
    device.setDotsPerMeterX(dots);
    device.setDotsPerMeterY(dots);
    return QFontMetrics(QApplication::font(), &device);
}

}  // namespace

void CNativeParts::Draw(QImage& image, rectangle<int> const& area, IPainter::ControlElement element, int state,
                        double ratio)
{
    if (!qApp || image.isNull() || area.IsEmpty())
        return;
    // Styles keep pictures of parts at the application's ratio; drawn at another one these would be stretched. What the
    // scale adds to it is told them as dots per inch.
    double const own = qApp->devicePixelRatio();
    image.setDevicePixelRatio(own);
    QPainter painter(&image);
    painter.setClipping(false);
    painter.translate(area.left / own, area.top / own);

    // The style works in Qt's pixels. Where their number is no whole one the part is drawn a little smaller, so that
    // its far edges do not fall off.
    constexpr double slack = 0.01;
    QRect const rect(0, 0, std::max(1, CeilToInt(area.Width() / own - slack)),
                     std::max(1, CeilToInt(area.Height() / own - slack)));
    painter.scale(area.Width() / own / rect.width(), area.Height() / own / rect.height());
    painter.fillRect(rect, QApplication::palette().color(QPalette::Window));
    double const zoom = ratio / own;
    DrawPart({QApplication::style(), painter, rect, state, zoom, GetZoomedMetrics(zoom)}, element);
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
