#pragma once

#include "vexel/core/visual_element.h"
#include "vexel/signals/signal.h"
#include "vexel/widgets/config_model.h"

#include <cstddef>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace vexel::test
{

/// A line with or without an editor, which it owns.
class CTreeItem : public IConfigItem
{
public:
    explicit CTreeItem(std::string caption) : m_Caption(std::move(caption)) {}

    CVisualElement* GetEditor() override { return m_Editor.get(); }
    std::string GetCaption() const override { return m_Caption; }

    std::unique_ptr<CVisualElement> m_Editor;

private:
    std::string const m_Caption;
};

/// A category with a name, a description, and whatever is put into it. Tells when it opens and closes.
class CTreeCategory : public IConfigCategory
{
public:
    CTreeCategory(std::string caption, std::string description, IConfigCategory const* parent = nullptr)
        : m_Caption(std::move(caption)), m_Description(std::move(description)), m_Parent(parent)
    {}

    CTreeCategory& AddCategory(std::string const& caption, std::string const& description)
    {
        m_Categories.push_back(std::make_unique<CTreeCategory>(caption, description, this));
        return *m_Categories.back();
    }
    CTreeItem& AddItem(std::string const& caption)
    {
        m_Items.push_back(std::make_unique<CTreeItem>(caption));
        return *m_Items.back();
    }
    /// An item with an editor that is so wide before it gets a place.
    template <class Editor = CVisualElement> Editor& AddEditor(std::string const& caption, int width = 60)
    {
        auto made = std::make_unique<Editor>(nullptr, size<int>{width, 20}, alNone);
        made->SetDynamic(false);
        made->SetPos({0, 0, width, 20}, false);
        Editor& editor = *made;
        AddItem(caption).m_Editor = std::move(made);
        return editor;
    }
    void AddNoItem() { m_Items.push_back(nullptr); }
    void AddNoCategory() { m_Categories.push_back(nullptr); }

    signal_t<CTreeCategory*> m_Activated;
    signal_t<CTreeCategory*> m_Deactivated;
    std::vector<std::unique_ptr<CTreeCategory>> m_Categories;  ///< Some may be null.
    std::vector<std::unique_ptr<CTreeItem>> m_Items;           ///< Some may be null.

    // From ICategorySet
    int GetCategoryCount() const override { return static_cast<int>(m_Categories.size()); }
    IConfigCategory* GetCategory(int index) override { return m_Categories.at(static_cast<std::size_t>(index)).get(); }
    IConfigCategory const* GetCategory(int index) const override
    {
        return m_Categories.at(static_cast<std::size_t>(index)).get();
    }
    // From IConfigCategory
    std::string GetCaption() const override { return m_Caption; }
    std::string GetDescription() const override { return m_Description; }
    void Activate() override { m_Activated(this); }
    void Deactivate() override { m_Deactivated(this); }
    IConfigCategory const* GetParent() const override { return m_Parent; }
    int GetItemCount() const override { return static_cast<int>(m_Items.size()); }
    IConfigItem* GetItem(int index) override { return m_Items.at(static_cast<std::size_t>(index)).get(); }
    IConfigItem const* GetItem(int index) const override { return m_Items.at(static_cast<std::size_t>(index)).get(); }

private:
    std::string const m_Caption;
    std::string const m_Description;
    IConfigCategory const* const m_Parent;
};

class CTreeModel : public IConfigModel
{
public:
    CTreeCategory& AddCategory(std::string const& caption, std::string const& description)
    {
        m_Categories.push_back(std::make_unique<CTreeCategory>(caption, description));
        return *m_Categories.back();
    }
    void AddNoCategory() { m_Categories.push_back(nullptr); }

    int GetCategoryCount() const override { return static_cast<int>(m_Categories.size()); }
    IConfigCategory* GetCategory(int index) override { return m_Categories.at(static_cast<std::size_t>(index)).get(); }
    IConfigCategory const* GetCategory(int index) const override
    {
        return m_Categories.at(static_cast<std::size_t>(index)).get();
    }

    std::vector<std::unique_ptr<CTreeCategory>> m_Categories;  ///< Some may be null.
};

}  // namespace vexel::test
