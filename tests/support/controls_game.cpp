#include "tests/support/controls_game.h"

#include "tests/support/lines_model.h"
#include "tests/support/test_images.h"
#include "vexel/controls/button_set.h"
#include "vexel/controls/combo_box_button.h"
#include "vexel/controls/control_caption.h"
#include "vexel/controls/list.h"
#include "vexel/controls/list_box.h"
#include "vexel/controls/picture_button.h"
#include "vexel/controls/radio_button.h"
#include "vexel/controls/round_bg_button.h"
#include "vexel/core/base_control.h"
#include "vexel/platform/painter.h"
#include "vexel/testing/random.h"

#include <vector>

namespace vexel::test
{

using namespace vexelbase;

namespace
{

char const* g_Lines[] = {"4 4 2 1", "r c #FF0000", ". c None", ".rr.", "rrrr", "rrrr", ".rr."};

char const* const g_Texts[] = {
    "", "a", "some text", "two\nlines", "<b>b</b> <a href=\"x\">link</a> more", "a longer text to be cut"};

/// The filled ground that all stands on.
class CSheet : public CVisualElement
{
public:
    using CVisualElement::CVisualElement;

    void DrawContent(IPainter* painter) override
    {
        rectangle<int> const bounds = GetBounds();
        painter->FillRect(0, 0, bounds.right, bounds.bottom);
    }
};

}  // namespace

class CControlsGame::CPlay : public subscriber_base_t
{
public:
    explicit CPlay(std::uint64_t seed) : m_Random(seed)
    {
        m_Host.Control().SetImageList(&m_Images);
        for (int i = 0; i < 6; ++i)
            Add();
        m_Host.Paint();
    }
    ~CPlay() override { m_Host.Control().SetImageList(nullptr); }

    void Step()
    {
        if (m_Tops.size() < 4)
            Add();
        if (m_Random.Chance(15))
        {
            m_Deed.clear();
            return ChangeLists();
        }
        int const deed = m_Captions.empty() ? m_Random.Int(20, 29) : m_Random.Index(30);
        m_Deed = std::to_string(deed);
        if (deed < 20)
            Set(*m_Random.Pick(m_Captions), deed);
        else
            Use(deed);
    }
    std::string Describe() const
    {
        std::string text = m_Deed + "\n";
        for (CVisualElement const* const top : m_Tops)
        {
            rectangle<int> const& r = top->GetPos();
            text += ElementName(top) + " " + std::to_string(r.left) + " " + std::to_string(r.top) + " " +
                    std::to_string(r.right) + " " + std::to_string(r.bottom) + (top->IsVisible() ? "" : " hidden") +
                    "\n";
        }
        return text;
    }

    int m_Clicks = 0;
    int m_Chosen = 0;  // in check boxes and lists
    CTestRandom m_Random;

private:
    void Clicked(CButton* button)
    {
        ++m_Clicks;
        if (m_Random.Chance(20))
            Forget(button);
    }
    void Checked(CCheckBox* box)
    {
        ++m_Chosen;
        if (m_Random.Chance(10))
            Forget(box);
    }
    void ItemClicked(CList* list, int)
    {
        ++m_Chosen;
        if (m_Random.Chance(10))
            Forget(list);
    }
    void Activated(int) { ++m_Chosen; }
    void NeedImage(CCustomCheckBox*, int, CImageHolder& holder) { holder.m_Index = m_Random.Int(-1, 1); }
    void Deleted(CVisualElement* element)
    {
        std::erase(m_Captions, element);
        std::erase(m_Tops, element);
        std::erase(m_Lists, element);
        std::erase(m_ListBoxes, element);
    }
    // Deletes a button, or the element at the top that it belongs to. Pixels of what is deleted stay, so all is laid out.
    void Forget(CVisualElement* element)
    {
        while (m_Random.Bool() && element->GetParent() != &m_Sheet)
            element = element->GetParent();
        if (!element->IsDynamic())
            return;
        element->ReParent(nullptr, true);
        delete element;
        m_Host.Control().Rearrange();
    }

    template <class Element> Element* New()
    {
        static Alignment const edges[] = {alLeft, alRight, alTop, alBottom};
        auto* const element = new Element(&m_Sheet, {m_Random.Int(40, 60), m_Random.Int(40, 60)}, m_Random.Pick(edges));
        m_Tops.push_back(element);
        element->m_SigDestroy.connect(this, &CPlay::Deleted);
        return element;
    }
    template <class Button> Button* NewButton()
    {
        auto* const button = New<Button>();
        button->m_Clicked.connect(this, &CPlay::Clicked);
        m_Captions.push_back(button);
        return button;
    }
    void Add()
    {
        int const kind = m_Random.Index(15);
        if (kind >= 7)
            return AddChoice(kind);
        switch (kind)
        {
        case 0:
            m_Captions.push_back(New<CCaption>());
            break;
        case 1:
            NewButton<CButton>();
            break;
        case 2:
            NewButton<CArrowButton>()->SetArrowType(static_cast<CArrowButton::ArrowType>(m_Random.Index(4)));
            break;
        case 3:
        {
            auto* const strip = New<CControlCaption>();
            strip->GetText().SetCaption("title");
            break;
        }
        case 4:
        {
            auto* const button = NewButton<CPictureButton>();
            button->SetTransparent(true);  // what shows through the image is the parent's
            if (m_Random.Bool())
                button->SetNormalImage(m_Random.Index(2));
            else
                button->SetNormalImage(XPMImage(XPMBuf(g_Lines, true)));
            break;
        }
        case 5:
        {
            auto* const bevel = New<CBevel>();
            bevel->SetShape(static_cast<CBevel::BorderShape>(m_Random.Index(8)));
            bevel->SetStyle(static_cast<CBevel::BorderStyle>(m_Random.Index(3)));
            break;
        }
        default:
        {
            auto* const row = New<CButtonSet>();
            row->SetButtons(static_cast<unsigned int>(m_Random.Index(16)));
            break;
        }
        }
    }
    void AddChoice(int kind)
    {
        switch (kind)
        {
        case 7:
            NewButton<CCheckBox>()->m_CheckChanged.connect(this, &CPlay::Checked);
            break;
        case 8:
        {
            auto* const box = NewButton<CCustomCheckBox>();
            box->m_NeedImage.connect(this, &CPlay::NeedImage);
            break;
        }
        case 9:
        {
            auto* const radio = NewButton<CRadioButton>();
            m_Group.Add(radio);
            radio->m_CheckChanged.connect(this, &CPlay::Checked);
            break;
        }
        case 10:
            NewButton<CDropButton>();
            break;
        case 11:
        {
            auto* const button = NewButton<CComboBoxButton>();
            button->GetList()->GetViewer().SetModel(&m_Lines);
            button->GetList()->GetViewer().m_SigItemActivated.connect(this, &CPlay::Activated);
            break;
        }
        case 12:
            NewButton<CRoundBgButton>();
            break;
        case 13:
        {
            CList* const list = m_Random.Bool() ? New<CList>() : nullptr;
            if (list)
                list->SetModel(&m_Lines);
            auto* const pictured = list ? nullptr : New<CPicturedList>();
            if (pictured)
                pictured->SetModel(&m_PicturedLines);
            CList* const made = list ? list : pictured;
            made->SetHotTrack(true);
            made->m_SigItemClicked.connect(this, &CPlay::ItemClicked);
            m_Lists.push_back(made);
            break;
        }
        default:
        {
            auto* const box = New<CListBox>();
            box->GetViewer().SetModel(&m_Lines);
            box->GetViewer().m_SigItemActivated.connect(this, &CPlay::Activated);
            m_ListBoxes.push_back(box);
            break;
        }
        }
    }
    void ChangeLists()
    {
        int const deed = m_Random.Index(8);
        m_Deed += " list " + std::to_string(deed);
        if (deed == 0)
            m_Lines.Set(NumberedLines(m_Random.Index(20)));
        else if (deed == 1)
            m_Group.SetCurrent(m_Random.Int(-1, 3));
        // A list paints anew when it is told that its lines are others.
        for (CList* const list : m_Lists)
        {
            if (deed == 0)
                list->Update(utElement);
            else if (deed == 2)
                list->SetLineSpacing(m_Random.Int(0, 8));
            else if (deed == 3)
                list->SetOffset({m_Random.Index(8), 2, 3, 4});
        }
        for (CListBox* const box : m_ListBoxes)
        {
            CListBoxViewer& rows = box->GetViewer();
            if (deed == 4)
                rows.SetLineWidth(m_Random.Int(0, 200));
            else if (deed == 5)
                rows.SetCurrentItem(m_Random.Int(-1, 10));
            else if (deed == 6)
                rows.GetVertScroll()->SetStart(m_Random.Index(10));
            else if (deed == 7)
                rows.GetHorzScroll()->SetStart(m_Random.Index(60));
        }
    }
    void Set(CCaption& caption, int deed)
    {
        m_Deed += " of " + ElementName(&caption);
        auto* const button = dynamic_cast<CButton*>(&caption);
        // A round button does not paint over what a text leaves around its corners, so its text keeps away from them.
        if (deed <= 4 && dynamic_cast<CRoundBgButton*>(&caption))
            return caption.SetCaption(m_Random.Bool() ? "a" : "");
        switch (deed)
        {
        case 0:
        case 1:
        case 2:
            return caption.SetCaption(m_Random.Pick(g_Texts));
        case 3:
            caption.SetImageIndex(m_Random.Int(-1, 1));
            return caption.AttributeChanged();  // takes the room it needs
        case 4:
            return caption.SetTextAlign(m_Random.Index(64));
        case 5:
            // The arrow's second head may stick out of a button that is hardly larger than the arrow.
            return dynamic_cast<CArrowButton*>(&caption) ? void() : caption.SetAutoSize(m_Random.Bool());
        case 6:
            return caption.AdjustHeight(m_Random.Bool());
        case 7:
            return caption.UseHTML(m_Random.Bool());
        case 8:
            return caption.SetMaxTextWidth(m_Random.Int(-5, 60));
        case 9:
            return button ? void() : caption.SetTextLayout(m_Random.Bool());
        case 10:
            return caption.SetEnabled(m_Random.Bool());
        case 11:
            return caption.SetBkColor(color_table[m_Random.Int(1, 27)]);
        case 12:
            return dynamic_cast<CPictureButton*>(&caption) ? void() : caption.SetTransparent(m_Random.Bool());
        case 13:
            return caption.SetVisible(m_Random.Bool());
        case 14:
            return caption.SetAlignment(static_cast<Alignment>(m_Random.Int(1, 4)));
        case 15:
            caption.SetImageSpace(m_Random.Int(-1, 9));
            return caption.AttributeChanged();
        default:
            break;
        }
        if (!button)
            return;
        if (deed == 16)
            button->SetStyle(static_cast<CButton::BorderStyle>(m_Random.Index(3)));
        else if (deed == 17)
            button->SetShape(static_cast<CButton::BorderShape>(m_Random.Index(3)));
        else if (deed == 18)
        {
            button->SetNativeDrawing(m_Random.Bool());
            button->Update(utElement);
        }
        else
            button->SetAutoRepeat(m_Random.Bool());
    }
    void Use(int deed)
    {
        int const keys[] = {vkSpace, vkReturn, vkDown, vkUp, vkEscape};
        switch (deed)
        {
        case 20:
        case 21:
        case 22:
            m_Host.Mouse().Move(m_Random.Index(400), m_Random.Index(400));
            break;
        case 23:
        case 24:
            m_Host.Mouse().Click(m_Random.Index(400), m_Random.Index(400));
            break;
        case 25:
            if (m_Host.Mouse().IsHeld(mbLeft))
                m_Host.Mouse().Release();
            else
                m_Host.Mouse().Press(m_Random.Index(400), m_Random.Index(400));
            break;
        case 26:
            m_Host.Clock().Advance(150);
            m_Host.RunPending();
            break;
        case 27:
            m_Host.Focus();
            m_Host.Keyboard().Tab(m_Random.Bool());
            break;
        case 28:
            m_Host.Keyboard().Press(m_Random.Pick(keys));
            break;
        default:
            m_Host.Resize(m_Random.Int(390, 430), m_Random.Int(390, 430));
            break;
        }
    }

    CTestImages m_Images{{{16, 12}, {7, 9}}};
    CLinesModel m_Lines{NumberedLines(9)};
    CPicturedLinesModel m_PicturedLines{NumberedLines(4)};
    CRadioGroup m_Group;
    std::vector<CCaption*> m_Captions;
    std::vector<CVisualElement*> m_Tops;
    std::vector<CList*> m_Lists;
    std::vector<CListBox*> m_ListBoxes;

public:
    CTestHost m_Host{400, 400};  // room for all: what finds none may stick out

private:
    CSheet& m_Sheet = *new CSheet(m_Host.Root(), {0, 0}, alClient);
    std::string m_Deed;
};

CControlsGame::CControlsGame(std::uint64_t seed) : m_Play(std::make_unique<CPlay>(seed)) {}

CControlsGame::~CControlsGame() = default;

CTestHost& CControlsGame::Host()
{
    return m_Play->m_Host;
}

void CControlsGame::Step()
{
    m_Play->Step();
}

void CControlsGame::Reseed(std::uint64_t seed)
{
    m_Play->m_Random = CTestRandom(seed);
}

std::string CControlsGame::Describe() const
{
    return m_Play->Describe();
}

int CControlsGame::GetClicks() const
{
    return m_Play->m_Clicks;
}

int CControlsGame::GetChosen() const
{
    return m_Play->m_Chosen;
}

}  // namespace vexel::test
