#include "gallery/pages/html_text_page.h"

#include "gallery/frame/panel.h"
#include "vexel/platform/convert.h"
#include "vexel/platform/painter.h"
#include "vexel/platform/text_formatter.h"

#include <vector>

namespace gallery
{

namespace
{

/// Draws a text with mark-up and knows where its links stand.
class CMarkup : public CPanel
{
public:
    CMarkup(CVisualElement* parent, size<int> const& extent, Alignment alignment, std::string text)
        : CPanel(parent, extent, alignment), m_Markup(std::move(text)), m_Formatter(*this)
    {
        SetBkColor(ISysPalette::scWindow);
        SetFgColor(ISysPalette::scWindowText);
        SetFrame(true);
    }

    signal_t<CMarkup*, std::string const&> m_SigLink;

protected:
    void DrawContent(IPainter* painter) override
    {
        CPanel::DrawContent(painter);
        m_Links.clear();
        m_Formatter.Clear();
        double const margin = ToInt(8 * painter->GetDPIScale());
        rectangle<double> rect = ToDouble(GetBounds());
        rect.left += margin;
        rect.top += margin;
        rect.right -= margin;
        rect.bottom -= margin;
        painter->DrawStringEx(rect, m_Markup.c_str(), IPainter::AlignLeft | IPainter::AlignTop, -1, MarkupDelimiters,
                              &m_Formatter);
    }
    bool HandleMouseMove(int x, int y, int, MouseButton) override
    {
        SetCursor(FindLink(x, y) ? 12 : 1);
        return false;
    }
    bool HandleClick(int x, int y, int, MouseButton) override
    {
        if (SLink const* const link = FindLink(x, y))
            m_SigLink(this, link->target);
        return true;
    }
    std::string HandleAsString() const override { return RemoveLinks(m_Markup); }

private:
    struct SLink
    {
        std::string target;
        rectangle<int> rect;  // control pixels
    };

    class CLinks : public CHTMLTextFormatter
    {
    public:
        explicit CLinks(CMarkup& owner) : m_Owner(owner) {}

        void OnDrawLink(char const* target, int length, rectangle<int> const& rect) override
        {
            // The further parts of a link have no target of their own.
            std::string const text = target                    ? std::string(target, static_cast<std::size_t>(length))
                                     : m_Owner.m_Links.empty() ? std::string()
                                                               : m_Owner.m_Links.back().target;
            m_Owner.m_Links.push_back({text, rect});
        }

    private:
        CMarkup& m_Owner;
    };

    SLink const* FindLink(int x, int y) const
    {
        point<int> position{x, y};
        ElementToControl(&position);
        for (SLink const& link : m_Links)
        {
            if (link.rect.Contains(position.x, position.y))
                return &link;
        }
        return nullptr;
    }

    std::string const m_Markup;
    std::vector<SLink> m_Links;
    CLinks m_Formatter;
};

char const* const g_Text =
    "Plain, <b>bold</b>, <i>italic</i>, <u>underlined</u>, and <b><i><u>all three</u></i></b>.<br>"
    "A new line after a break; entities: &lt; &gt; &amp; &#8364;.<br>"
    "A <a href=\"first\">link</a> and <a href=\"second\">a longer link that may be spread over several lines</a>, "
    "and <unknown>a tag that nobody knows</unknown>.";

}  // namespace

void CHtmlTextPage::Build(CVisualElement* parent)
{
    auto* const wide = new CMarkup(parent, {0, 110}, alTop, g_Text);
    auto* const narrow = new CMarkup(parent, {200, 0}, alLeft, g_Text);
    auto* const odd = new CMarkup(parent, {240, 0}, alLeft,
                                  "Left open: <b>bold <i>and italic<br>"
                                  "</u> closed without having been opened,<br>"
                                  "a < b && c > d, 5 &lt; 6 &unknown; &#x41;<br>"
                                  "<a href=\"outer\">outer <a href=\"inner\">inner</a> link</a>");
    new CPanel(parent, {0, 0}, alClient);
    Report(wide->m_SigLink, "wide.link");
    Report(narrow->m_SigLink, "narrow.link");
    Report(odd->m_SigLink, "odd.link");
    ReportMouse(wide, "wide");
}

}  // namespace gallery
