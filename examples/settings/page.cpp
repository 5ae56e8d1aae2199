#include "page.h"

#include <algorithm>

namespace settings
{

void CGround::DrawContent(IPainter* painter)
{
    rectangle<int> const bounds = GetBounds();
    painter->FillRect(0, 0, bounds.right, bounds.bottom);
}

class CPage::CRow : public subscriber_base_t
{
public:
    CRow(CPage& page, ISysWindow& window, CValues& values, SSetting const& setting)
        : m_Page(page), m_Window(window), m_Values(values), m_Setting(setting)
    {
        new CGround(&page, {0, 10}, alTop);
        m_Pane = new CGround(&page, {0, 26}, alTop);
        std::string const value = values.Get(setting.key);
        switch (setting.kind)
        {
        case Kind::check:
            AddCheck(value);
            break;
        case Kind::radio:
            AddLabel();
            AddRadio(value);
            break;
        case Kind::choice:
            AddLabel();
            AddChoice(value);
            break;
        case Kind::line:
        case Kind::number:
            AddLabel();
            AddLine(value);
            break;
        case Kind::box:
            AddLabel();
            AddBox(value);
            break;
        }
        new CGround(m_Pane, {0, 0}, alClient);
    }

private:
    void AddLabel()
    {
        auto* const label = new CCaption(m_Pane, {150, 0}, alLeft);
        label->SetTextAlign(IPainter::AlignLeft | IPainter::AlignVCenter | IPainter::AlignFitText);
        label->SetCaption(m_Setting.label);
    }
    void AddCheck(std::string const& value)
    {
        auto* const box = new CCheckBox(m_Pane, {330, 0}, alLeft);
        box->SetCaption(m_Setting.label);
        box->SetChecked(value == "on");
        box->m_CheckChanged.connect(this, &CRow::CheckChanged);
    }
    void AddRadio(std::string const& value)
    {
        for (std::string const& choice : m_Setting.choices)
        {
            auto* const button = new CRadioButton(m_Pane, {120, 0}, alLeft);
            button->SetCaption(choice);
            button->SetChecked(choice == value);
            m_Group.Add(button);
        }
        m_Group.m_CurrentChanged.connect(this, &CRow::GroupChanged);
    }
    void AddChoice(std::string const& value)
    {
        auto* const button = new CComboBoxButton(m_Pane, {240, 0}, alLeft);
        m_Choices = std::make_unique<CChoices>(m_Setting.choices);
        CListBoxViewer& list = button->GetList()->GetViewer();
        list.SetModel(m_Choices.get());
        list.SetCurrentItem(IndexOf(value));
        button->UpdateCaption(IndexOf(value));
        list.m_SigItemActivated.connect(this, &CRow::Chosen);
    }
    void AddLine(std::string const& value)
    {
        auto* const field = new CLineField(m_Pane);
        field->Init(&m_Window);
        field->SetText(value);
        field->m_SigTextChanged.connect(this, &CRow::LineChanged);
    }
    void AddBox(std::string const& value)
    {
        auto* const field = new CBoxField(m_Pane);
        field->Init(&m_Window, true);
        if (IComboBox* const box = field->GetComboBox())
            for (std::string const& choice : m_Setting.choices)
                box->AddItem(choice);
        field->SetText(value);
        field->m_SigTextChanged.connect(this, &CRow::BoxChanged);
    }

    int IndexOf(std::string const& value) const
    {
        auto const& choices = m_Setting.choices;
        auto const found = std::find(choices.begin(), choices.end(), value);
        return found != choices.end() ? static_cast<int>(found - choices.begin()) : -1;
    }

    void CheckChanged(CCheckBox* box) { Take(box->IsChecked() ? "on" : "off"); }
    void GroupChanged(CRadioGroup*, int index) { Chosen(index); }
    void Chosen(int index)
    {
        if (index >= 0)
            Take(m_Setting.choices.at(static_cast<std::size_t>(index)));
    }
    void LineChanged(CField<CLineEditor>* field)
    {
        if (!Take(field->GetText()))
            field->SetText(m_Values.Get(m_Setting.key));
    }
    void BoxChanged(CField<CComboBox>* field) { Take(field->GetText()); }

    // False: the value stays as it was.
    bool Take(std::string const& value)
    {
        std::string const complaint = GetComplaint(m_Setting, value);
        if (complaint.empty())
            m_Values.Set(m_Setting.key, value);
        m_Page.m_SigTold(complaint.empty() ? m_Setting.label + ": " + value : complaint);
        return complaint.empty();
    }

    CPage& m_Page;
    ISysWindow& m_Window;
    CValues& m_Values;
    SSetting const& m_Setting;
    CVisualElement* m_Pane = nullptr;
    CRadioGroup m_Group;
    std::unique_ptr<CChoices> m_Choices;
};

CPage::CPage(CVisualElement* parent, ISysWindow& window, CValues& values, std::string const& category,
             std::string const& tab)
    : CGround(parent, {0, 0}, alClient)
{
    for (SSetting const& setting : GetSettings())
        if (setting.category == category && setting.tab == tab)
            m_Rows.push_back(std::make_unique<CRow>(*this, window, values, setting));
    new CGround(this, {0, 0}, alClient);
}

CPage::~CPage() = default;

}  // namespace settings
