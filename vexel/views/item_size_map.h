#pragma once

#include "vexel/export.h"
#include "vexel/views/block_map.h"

#include <cstdint>

namespace vexel
{

class IIndexTranslator;

/// The sizes of those items that don't have the default size, by index. All are above 0.
class VEXEL_API CItemSizeMap
{
public:
    struct SSum
    {
        int count = 0;
        std::int64_t size = 0;
    };
    struct SSizeWeight
    {
        static std::int64_t Of(int, int size) { return size; }
    };
    using Nodes = CBlockMap<int, SSizeWeight>;

    bool IsEmpty() const { return m_Nodes.IsEmpty(); }
    int GetCount() const { return m_Nodes.GetCount(); }
    int Get(int index, int otherwise) const;
    void Set(int index, int size) { m_Nodes.Assign(index, size); }
    void Remove(int index);
    /// The sizes go with their items; those of removed items are dropped.
    void Translate(IIndexTranslator const& translator);

    /// The entries of the items `from` up to, not including, `to`. Doesn't walk all of them.
    SSum Sum(int from, int to) const;
    Nodes const& GetNodes() const { return m_Nodes; }

private:
    Nodes m_Nodes;
};

}  // namespace vexel
