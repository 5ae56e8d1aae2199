#pragma once

#include "vexel/export.h"

#include <string>

namespace vexel
{

class CVisualElement;
class IConfigCategory;

/// Categories by index, from 0.
class VEXEL_API ICategorySet
{
public:
    virtual ~ICategorySet();
    virtual int GetCategoryCount() const = 0;
    virtual IConfigCategory* GetCategory(int index) = 0;  ///< Null: left out.
    virtual IConfigCategory const* GetCategory(int index) const = 0;
};

/// What a configuration viewer shows. The categories stay the same as long as it does.
class VEXEL_API IConfigModel : public ICategorySet
{};

/// No categories.
class VEXEL_API CDefConfigModel : public IConfigModel
{
public:
    int GetCategoryCount() const override { return 0; }
    IConfigCategory* GetCategory(int) override { return nullptr; }
    IConfigCategory const* GetCategory(int) const override { return nullptr; }
};

/// One line of a category.
class VEXEL_API IConfigItem
{
public:
    virtual ~IConfigItem();
    /// The element that edits the item, as wide as it is; null: none. It belongs to the item: a viewer takes it as a child
    /// while its category is open, and neither deletes it nor gives it back before it dies itself.
    virtual CVisualElement* GetEditor() = 0;
    virtual std::string GetCaption() const = 0;
};

/// Anything that stands in a model.
class VEXEL_API IItem
{
public:
    virtual ~IItem();
};

/// A group of items, which may have groups of its own.
class VEXEL_API IConfigCategory : public IItem, public ICategorySet
{
public:
    virtual std::string GetCaption() const = 0;            ///< The title.
    virtual std::string GetDescription() const = 0;        ///< One or more lines below the title.
    virtual void Activate() {}                             ///< It opens. Called again when it is refreshed.
    virtual void Deactivate() {}                           ///< It closes.
    virtual std::string GetHelpId() const { return {}; }   ///< For the application's own use.
    virtual IConfigCategory const* GetParent() const = 0;  ///< Null at the top level.
    virtual int GetItemCount() const = 0;
    virtual IConfigItem* GetItem(int index) = 0;  ///< May be null: an empty line.
    virtual IConfigItem const* GetItem(int index) const = 0;
};

}  // namespace vexel
