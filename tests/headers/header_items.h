#pragma once

#include "vexel/headers/header_tree.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace vexel::test
{

class CItem;

/// What items stand in: the list that a tree of a test and its items share.
class CItemList
{
public:
    std::vector<std::unique_ptr<CItem>> m_Children;

    int Count() const { return static_cast<int>(m_Children.size()); }
    CItem* At(int index) const;
    CItem* Find(std::string const& name) const;  ///< Here or below; null: none.
};

/// A section of a test. Everything can be set.
class CItem : public IHeaderItem, public CItemList
{
public:
    CItem(IHeaderContainer* parent, std::string name) : m_Parent(parent), m_Name(std::move(name)) {}

    IHeaderContainer* m_Parent;
    std::string m_Name;
    int m_Width = 50;
    bool m_Collapsed = false;
    int m_Image = -1;
    int m_Align = 0x21;  // left, vertically centred
    int m_ModelIndex = -1;
    int m_Sorting = 0;
    std::string m_Description;
    signal_t<>* m_Tell = nullptr;  ///< Fired by each change, as a model may.

    IHeaderContainer* GetParent() override { return m_Parent; }
    IHeaderContainer const* GetParent() const override { return m_Parent; }
    int GetChildCount() const override { return Count(); }
    IHeaderItem* GetChild(int index) override { return At(index); }
    IHeaderItem const* GetChild(int index) const override { return At(index); }
    std::string GetText() const override { return m_Name; }
    int GetWidth() const override { return m_Width; }
    void SetWidth(int width) override
    {
        m_Width = width;
        if (m_Tell)
            (*m_Tell)();
    }
    int GetImageIndex() const override { return m_Image; }
    int GetTextAlign() const override { return m_Align; }
    int GetModelIndex() const override { return m_ModelIndex; }
    int GetSortingDirection() const override { return m_Sorting; }
    std::string GetDescription() const override { return m_Description; }
    void Expand(bool expand) override
    {
        m_Collapsed = !expand;
        if (m_Tell)
            (*m_Tell)();
    }
    int GetExpandState() const override
    {
        if (m_Children.empty())
            return esNone;
        return m_Collapsed ? esCollapsed : esExpanded;
    }
};

inline CItem* CItemList::At(int index) const
{
    return index >= 0 && index < Count() ? m_Children[static_cast<std::size_t>(index)].get() : nullptr;
}

inline CItem* CItemList::Find(std::string const& name) const
{
    for (auto const& child : m_Children)
    {
        if (child->m_Name == name)
            return child.get();
        if (CItem* const found = child->Find(name))
            return found;
    }
    return nullptr;
}

/// A tree of sections, by a text such as "A(a:50 b:60) B-:40(c:10 d) E": names, "-" for collapsed, widths (50 if none) and in
/// parentheses the children. Model indices are given in reading order, from 0.
class CItemTree : public IHeaderModel, public CItemList
{
public:
    explicit CItemTree(std::string const& text = "") { Read(text); }

    int GetChildCount() const override { return Count(); }
    IHeaderItem* GetChild(int index) override { return At(index); }
    IHeaderItem const* GetChild(int index) const override { return At(index); }

    CItem& operator[](std::string const& name) const { return *Find(name); }  ///< It must exist.
    /// Replaces all.
    void Read(std::string const& text)
    {
        m_Children.clear();
        int number = 0;
        std::size_t place = 0;
        ReadList(text, place, this, *this, number);
    }
    /// As it was read.
    std::string Text() const { return Write(*this); }
    static CItemList& ListOf(IHeaderContainer* container)
    {
        if (auto* const item = dynamic_cast<CItem*>(container))
            return *item;
        return *static_cast<CItemTree*>(container);
    }
    static int PlaceOf(CItem* item)  ///< Among its siblings.
    {
        CItemList const& list = ListOf(item->m_Parent);
        for (int i = 0; i < list.Count(); ++i)
            if (list.At(i) == item)
                return i;
        return -1;
    }
    /// Puts an item before the sibling that is at place `target` now.
    static void Move(CItem* item, int target)
    {
        auto& siblings = ListOf(item->m_Parent).m_Children;
        int const from = PlaceOf(item);
        std::unique_ptr<CItem> moved = std::move(siblings[static_cast<std::size_t>(from)]);
        siblings.erase(siblings.begin() + from);
        siblings.insert(siblings.begin() + (target > from ? target - 1 : target), std::move(moved));
    }
    static void Remove(CItem* item)
    {
        auto& siblings = ListOf(item->m_Parent).m_Children;
        siblings.erase(siblings.begin() + PlaceOf(item));
    }

private:
    static void ReadList(std::string const& text, std::size_t& place, IHeaderContainer* parent, CItemList& list,
                         int& number)
    {
        while (place < text.size() && text[place] != ')')
        {
            if (text[place] == ' ')
            {
                ++place;
                continue;
            }
            std::size_t const end = text.find_first_of("-:() ", place);
            auto item = std::make_unique<CItem>(parent, text.substr(place, end - place));
            place = std::min(end, text.size());
            item->m_ModelIndex = number++;
            if (place < text.size() && text[place] == '-')
            {
                item->m_Collapsed = true;
                ++place;
            }
            if (place < text.size() && text[place] == ':')
            {
                item->m_Width = std::atoi(text.c_str() + place + 1);
                place = std::min(text.find_first_of("() ", place), text.size());
            }
            if (place < text.size() && text[place] == '(')
            {
                ReadList(text, ++place, item.get(), *item, number);
                ++place;
            }
            list.m_Children.push_back(std::move(item));
        }
    }
    static std::string Write(CItemList const& list)
    {
        std::string text;
        for (auto const& child : list.m_Children)
        {
            text += (text.empty() ? "" : " ") + child->m_Name + (child->m_Collapsed ? "-" : "");
            if (child->m_Width != 50)
                text += ":" + std::to_string(child->m_Width);
            if (child->Count() > 0)
                text += "(" + Write(*child) + ")";
        }
        return text;
    }
};

inline std::string NameOf(IHeaderItem const* item)
{
    return item ? static_cast<CItem const*>(item)->m_Name : "-";
}

}  // namespace vexel::test
