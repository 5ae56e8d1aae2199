#pragma once

#include "vexel/core/visual_element.h"
#include "vexel/widgets/config_model.h"

#include <memory>
#include <string>
#include <vector>

namespace workbench
{

using namespace vexel;

/// An editor without a parent and a place; the viewer gives it both, in the open category with its highlight.
template <class Editor> std::unique_ptr<Editor> MakeEditor(int width)
{
    auto editor = std::make_unique<Editor>(nullptr, size<int>{width, 20}, alNone);
    editor->SetBkColor(ISysPalette::scHighlight);
    editor->SetFgColor(ISysPalette::scHighlightText);
    return editor;
}

/// A setting: a label and the element that edits it.
class CConfigItem : public IConfigItem
{
public:
    CConfigItem(std::string caption, std::unique_ptr<CVisualElement> editor)
        : m_Caption(std::move(caption)), m_Editor(std::move(editor))
    {
        if (m_Editor)
            m_Editor->SetDynamic(false);
    }
    CVisualElement* GetEditor() override { return m_Editor.get(); }
    std::string GetCaption() const override { return m_Caption; }

private:
    std::string const m_Caption;
    std::unique_ptr<CVisualElement> const m_Editor;
};

/// A group of settings, which may have groups below it.
class CConfigCategory : public IConfigCategory
{
public:
    CConfigCategory(CConfigCategory const* parent, std::string caption, std::string description)
        : m_Parent(parent), m_Caption(std::move(caption)), m_Description(std::move(description))
    {}

    CConfigCategory& AddCategory(std::string caption, std::string description)
    {
        m_Categories.push_back(std::make_unique<CConfigCategory>(this, std::move(caption), std::move(description)));
        return *m_Categories.back();
    }
    /// Takes the editor; null: a label alone. Returns it.
    template <class Editor> Editor* AddItem(std::string caption, std::unique_ptr<Editor> editor)
    {
        Editor* const element = editor.get();
        m_Items.push_back(std::make_unique<CConfigItem>(std::move(caption), std::move(editor)));
        return element;
    }
    void AddLabel(std::string caption)
    {
        m_Items.push_back(std::make_unique<CConfigItem>(std::move(caption), nullptr));
    }

public:  // From IConfigCategory
    int GetCategoryCount() const override { return static_cast<int>(m_Categories.size()); }
    IConfigCategory* GetCategory(int index) override { return m_Categories.at(static_cast<std::size_t>(index)).get(); }
    IConfigCategory const* GetCategory(int index) const override
    {
        return m_Categories.at(static_cast<std::size_t>(index)).get();
    }
    std::string GetCaption() const override { return m_Caption; }
    std::string GetDescription() const override { return m_Description; }
    IConfigCategory const* GetParent() const override { return m_Parent; }
    int GetItemCount() const override { return static_cast<int>(m_Items.size()); }
    IConfigItem* GetItem(int index) override { return m_Items.at(static_cast<std::size_t>(index)).get(); }
    IConfigItem const* GetItem(int index) const override { return m_Items.at(static_cast<std::size_t>(index)).get(); }

private:
    CConfigCategory const* const m_Parent;
    std::string const m_Caption;
    std::string const m_Description;
    std::vector<std::unique_ptr<CConfigCategory>> m_Categories;
    std::vector<std::unique_ptr<CConfigItem>> m_Items;
};

/// The groups at the top.
class CConfigTree : public IConfigModel
{
public:
    CConfigCategory& AddCategory(std::string caption, std::string description)
    {
        m_Categories.push_back(std::make_unique<CConfigCategory>(nullptr, std::move(caption), std::move(description)));
        return *m_Categories.back();
    }
    int GetCategoryCount() const override { return static_cast<int>(m_Categories.size()); }
    IConfigCategory* GetCategory(int index) override { return m_Categories.at(static_cast<std::size_t>(index)).get(); }
    IConfigCategory const* GetCategory(int index) const override
    {
        return m_Categories.at(static_cast<std::size_t>(index)).get();
    }

private:
    std::vector<std::unique_ptr<CConfigCategory>> m_Categories;
};

}  // namespace workbench
