#pragma once

#include "gallery/frame/page.h"
#include "gallery/frame/panel.h"
#include "vexel/charts/bar.h"

#include <string>
#include <utility>
#include <vector>

namespace gallery
{

/// Sections with captions and widths: the categories of a bar and the model of its axis.
class CBarSections : public IItemsModel, public IScrollModel
{
public:
    CBarSections(std::vector<std::string> captions, double width);

    void Move(int from, int to);

    // From IItemsModel
    int GetItemCount() const override { return static_cast<int>(m_Captions.size()); }
    std::string GetItemCaption(int index) const override;

    // From IScrollModel: an index is a section, its steps are pixels
    double GetFrom() const override { return 0; }
    double GetTo() const override { return GetItemCount(); }
    void SetStart(double value) override { m_Start = value; }
    double GetStart() const override { return m_Start; }
    int GetMinScrollDistance() const override { return 20; }
    bool IsFixedStepSize() const override { return false; }
    double GetStepSize(double index) const override;
    void SetStepSize(double index, double size) const override;
    void SetMeasure(std::pair<double, int>) override {}
    std::pair<double, int> GetMeasure() const override { return {1.0, 1}; }

private:
    bool Has(int index) const { return index >= 0 && index < GetItemCount(); }

    std::vector<std::string> m_Captions;
    mutable std::vector<double> m_Widths;
    double m_Start = 0;
};

class CBarPage : public CPage, public subscriber_base_t
{
public:
    CBarPage();

    void Build(CVisualElement* parent) override;

private:
    void Connect(CBar& bar, std::string const& name);
    void ShowState(int section);
    void ResizeColumn(int section, double width);
    void ResizeRow(int section, double width);
    void Dropped(CBar* bar, int from, int to);
    void RefreshBox();

    CBarSections m_Columns;
    CBarSections m_Rows;
    CBar* m_Top = nullptr;
    CBar* m_Left = nullptr;
    CScrollableElement* m_Cells = nullptr;
    CVisualElement* m_Box = nullptr;
    CPanel* m_Text = nullptr;
};

}  // namespace gallery
