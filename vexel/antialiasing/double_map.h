#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <utility>

namespace antialiasing
{

/// Values reached by a primary key, and a second index whose entries point at those values. Several double maps may index
/// the values of one of them, the owner: they are its sharers.
///
/// Holds at all times, but for what clear() says: m_Owner isn't null; who has another owner is among that one's sharers;
/// what m_Secondary points at lives in the owner's m_Primary, and what m_Saved points at in this one's. All of it belongs
/// to one thread.
template <class K1, class K2, class V, class C1 = std::less<K1>, class C2 = std::less<K2>,
          class A = std::allocator<std::pair<K1 const, V>>>
class double_map
{
public:
    using primary_map = std::map<K1, V, C1, A>;
    using secondary_map =
        std::map<K2, V*, C2, typename std::allocator_traits<A>::template rebind_alloc<std::pair<K2 const, V*>>>;

    double_map() = default;
    double_map(double_map const& other) { *this = other; }
    /// The sharers get back the index that they had before they shared.
    ~double_map();

    /// A copy of its own: the values, and the index of its own values. If `other` shares, so does this, with the same
    /// owner; but what `other` has in m_Secondary for that one isn't taken. Assigned to itself nothing changes.
    double_map& operator=(double_map const& other);

    /// Unties from the owner and empties both maps; a saved index is forgotten, not restored. The sharers aren't told:
    /// what they point at is gone, so let them detach first, or not look anything up until they do.
    void clear();
    /// Unties from the owner; the index that was saved is in force again. Returns who was the owner, null if this was.
    double_map* detach();

    /// Changes the keys of the own values, and lets the own index and those of all sharers follow the values. Secondary
    /// keys stay as they are. Of values that get the same key the first stays.
    template <class Pred> void modify_primary_keys(Pred const& pred);
    /// Changes the keys of one index; what they point at stays.
    template <class Pred> void _modify_secondary_map(secondary_map& index, Pred const& pred);

    primary_map m_Primary;                   ///< The values.
    secondary_map m_Secondary;               ///< Into the owner's values.
    double_map* m_Owner = this;              ///< Whose values m_Secondary points at; itself when not sharing.
    std::unique_ptr<secondary_map> m_Saved;  ///< The own index while another's values are shared; null until needed.
    std::set<double_map*> m_Sharers;         ///< Those whose owner this is.

private:
    using translation = std::map<V const*, V*>;

    bool is_sharing() const { return m_Owner != this; }
    /// The index of the own values; null if there is none.
    secondary_map* own_index() { return is_sharing() ? m_Saved.get() : &m_Secondary; }
    secondary_map const* own_index() const { return is_sharing() ? m_Saved.get() : &m_Secondary; }
    static void translate(secondary_map& index, translation const& moved);
};

template <class K1, class K2, class V, class C1, class C2, class A> double_map<K1, K2, V, C1, C2, A>::~double_map()
{
    std::set<double_map*> const sharers = m_Sharers;
    for (double_map* sharer : sharers)
        sharer->detach();
    clear();
}

template <class K1, class K2, class V, class C1, class C2, class A>
double_map<K1, K2, V, C1, C2, A>& double_map<K1, K2, V, C1, C2, A>::operator=(double_map const& other)
{
    if (this == &other)
        return *this;
    clear();
    // Who is assigned one of its own sharers stays its own owner.
    if (other.is_sharing() && other.m_Owner != this)
    {
        m_Owner = other.m_Owner;
        m_Owner->m_Sharers.insert(this);
        if (other.m_Saved)
            m_Saved = std::make_unique<secondary_map>();
    }

    secondary_map const* const from = other.own_index();
    if (!from || from->empty())
    {
        m_Primary = other.m_Primary;
        return *this;
    }
    translation copied;
    for (auto const& [key, value] : other.m_Primary)
        copied[&value] = &m_Primary.insert({key, value}).first->second;
    secondary_map& to = *own_index();
    for (auto const& [key, value] : *from)
        if (auto const found = copied.find(value); found != copied.end())
            to.insert({key, found->second});
    return *this;
}

template <class K1, class K2, class V, class C1, class C2, class A> void double_map<K1, K2, V, C1, C2, A>::clear()
{
    m_Saved.reset();
    if (is_sharing())
        detach();
    m_Primary.clear();
    m_Secondary.clear();
}

template <class K1, class K2, class V, class C1, class C2, class A>
double_map<K1, K2, V, C1, C2, A>* double_map<K1, K2, V, C1, C2, A>::detach()
{
    if (!is_sharing())
        return nullptr;
    double_map* const owner = std::exchange(m_Owner, this);
    owner->m_Sharers.erase(this);
    m_Secondary.clear();
    if (m_Saved)
        m_Secondary = std::move(*m_Saved);
    m_Saved.reset();
    return owner;
}

template <class K1, class K2, class V, class C1, class C2, class A>
template <class Pred>
void double_map<K1, K2, V, C1, C2, A>::modify_primary_keys(Pred const& pred)
{
    primary_map const old = std::exchange(m_Primary, primary_map());
    secondary_map* const index = own_index();
    if ((!index || index->empty()) && m_Sharers.empty())
    {
        for (auto const& [key, value] : old)
            m_Primary.insert({pred(key), value});
        return;
    }
    translation moved;
    for (auto const& [key, value] : old)
        moved[&value] = &m_Primary.insert({pred(key), value}).first->second;
    if (index)
        translate(*index, moved);
    for (double_map* sharer : m_Sharers)
        translate(sharer->m_Secondary, moved);
}

template <class K1, class K2, class V, class C1, class C2, class A>
template <class Pred>
void double_map<K1, K2, V, C1, C2, A>::_modify_secondary_map(secondary_map& index, Pred const& pred)
{
    secondary_map const old = std::exchange(index, secondary_map());
    for (auto const& [key, value] : old)
        index.insert({pred(key), value});
}

template <class K1, class K2, class V, class C1, class C2, class A>
void double_map<K1, K2, V, C1, C2, A>::translate(secondary_map& index, translation const& moved)
{
    secondary_map const old = std::exchange(index, secondary_map());
    for (auto const& [key, value] : old)
        if (auto const found = moved.find(value); found != moved.end())
            index.insert({key, found->second});
}

}  // namespace antialiasing
