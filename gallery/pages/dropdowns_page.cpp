#include "gallery/pages/dropdowns_page.h"

#include "gallery/frame/panel.h"
#include "vexel/controls/combo_box.h"
#include "vexel/controls/combo_box_button.h"
#include "vexel/core/control.h"

namespace gallery
{

namespace
{

// What a field shows while it isn't edited, and what the text becomes when an edit is accepted.
template <class Editor> class CField : public Editor
{
public:
    explicit CField(CVisualElement* parent)
    {
        this->ReParent(parent, false);
        this->SetAlignment(alLeft);
        this->SetSize({240, 0}, true);
        this->GetEditContainer().SetCanHaveFocus(true);
        this->GetEditContainer().m_SigLostFocus.connect(this, &CField::LeaveEdit);
        this->m_SigEditStarted.connect(this, &CField::StartEdit);
        this->m_SigEditFinished.connect(this, &CField::FinishEdit);
        this->SetBkColor(ISysPalette::scWindow);
        this->SetFgColor(ISysPalette::scWindowText);
    }
    void SetText(std::string const& text) { m_Text = text; }

private:
    virtual void GiveText(std::string const& text) = 0;

    void StartEdit(CBaseEditor*)
    {
        m_Editing = true;
        GiveText(m_Text);
    }
    void FinishEdit(CBaseEditor*, bool accepted)
    {
        m_Editing = false;
        if (accepted && this->GetEditContainer().GetNativeControl())
            m_Text = this->GetEditContainer().GetNativeControl()->GetText();
        this->Update(utElement);
    }
    void LeaveEdit(CVisualElement*)
    {
        if (m_Editing)
            this->ProcessEditorCommand(CBaseEditor::ecAccept);
    }
    void DrawContent(IPainter* painter) override
    {
        rectangle<double> rect = ToDouble(this->GetBounds());
        painter->SetPen({this->IsEnabled() ? color_table[8] : color_table[23], pen::psSolid, 1});
        painter->Rectangle(rect.left, rect.top, rect.right, rect.bottom);
        this->GetEditorRect(rect);
        painter->DrawString({rect.left + 6, rect.top, rect.right - 4, rect.bottom}, m_Text,
                            IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText, -1);
    }
    std::string HandleAsString() const override { return m_Text; }

    std::string m_Text;
    bool m_Editing = false;
};

class CLineField : public CField<CLineEditor>
{
public:
    using CField<CLineEditor>::CField;

private:
    void GiveText(std::string const& text) override
    {
        GetEdit()->SetText(text);
        GetEdit()->SelectAll();
    }
};

class CBoxField : public CField<CComboBox>
{
public:
    using CField<CComboBox>::CField;

private:
    void GiveText(std::string const& text) override
    {
        GetComboBox()->SetText(text);
        for (int i = 0; i < GetComboBox()->GetItemCount(); ++i)
            if (GetComboBox()->GetItemText(i) == text)
                GetComboBox()->SetCurrentItem(i);
    }
};

CPanel* AddRow(CVisualElement* parent, std::string const& caption)
{
    new CPanel(parent, {0, 8}, alTop);
    auto* const row = new CPanel(parent, {0, 26}, alTop);
    new CLabel(row, {190, 0}, alLeft, caption);
    return row;
}

}  // namespace

CDropdownsPage::CDropdownsPage() = default;
CDropdownsPage::~CDropdownsPage() = default;

void CDropdownsPage::Build(CVisualElement* parent)
{
    CPanel* row = AddRow(parent, "Drop buttons");
    auto* const drop = new CDropButton(row, {130, 0}, alLeft);
    drop->SetCaption("Alt and down");
    Report(drop->m_SigDropDown, "drop");
    Report(drop->m_Clicked, "drop.clicked");
    new CPanel(row, {8, 0}, alLeft);
    auto* const image = new CDropButton(row, {130, 0}, alLeft);
    image->SetImageIndex(1);
    image->SetCaption("With an image");
    new CPanel(row, {8, 0}, alLeft);
    auto* const disabled = new CDropButton(row, {130, 0}, alLeft);
    disabled->SetCaption("Disabled");
    disabled->SetEnabled(false);

    row = AddRow(parent, "A list in a popup");
    auto* const seasons = new CComboBoxButton(row, {180, 0}, alLeft);
    seasons->GetList()->GetViewer().SetModel(&m_Seasons);
    seasons->UpdateCaption(1);
    seasons->GetList()->GetViewer().SetCurrentItem(1);
    Report(seasons->GetList()->GetViewer().m_SigItemActivated, "season");
    row = AddRow(parent, "A long one");
    auto* const numbered = new CComboBoxButton(row, {180, 0}, alLeft);
    numbered->GetList()->GetViewer().SetModel(&m_Numbered);
    numbered->SetVisibleDropWidth(260);
    numbered->UpdateCaption(0);
    Report(numbered->GetList()->GetViewer().m_SigItemActivated, "number");

    ISysWindow* const window = parent->GetControl() ? parent->GetControl()->GetWindow() : nullptr;
    auto* const line = new CLineField(AddRow(parent, "A line, edited in place"));
    line->Init(window);
    line->SetText("Click to edit; Return keeps it, Escape drops it");
    Report(line->m_SigEditFinished, "line.finished");
    for (bool const editable : {false, true})
    {
        auto* const box = new CBoxField(AddRow(parent, editable ? "A box with a line" : "A box to choose from"));
        box->Init(window, editable);
        if (IComboBox* const native = box->GetComboBox())
            for (char const* item : {"Spring", "Summer", "Autumn", "Winter"})
                native->AddItem(item);
        box->SetText("Summer");
        Report(box->m_SigEditFinished, editable ? "editable box.finished" : "box.finished");
    }
    new CPanel(parent, {0, 0}, alClient);
}

}  // namespace gallery
