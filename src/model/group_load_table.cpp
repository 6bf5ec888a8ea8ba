#include "model/group_load_table.h"

namespace tamur {

void GroupLoadTable::Append(const GroupLoad& load)
{
    loads_.Prepare() = load;
    nexts_.Prepare() = kNone;
    kept_.Reserve();
    Chain& chain = chains_.FindOrAdd(load.caseNumber);
    // Nothing fails from here on.
    const std::uint32_t place = static_cast<std::uint32_t>(loads_.Size());
    (chain.first == kNone ? chain.first : nexts_[chain.last]) = place;
    chain.last = place;
    firstOfNewest_ = chain.first;
    loads_.Commit();
    nexts_.Commit();
    kept_.Append();
}

void GroupLoadTable::RemoveFirst(Chain& chain)
{
    kept_.Remove(chain.first);
    chain.first = nexts_[chain.first];
}

void GroupLoadTable::RemoveCase(std::int32_t caseNumber)
{
    Chain* const chain = chains_.Find(caseNumber);
    if (chain == nullptr) return;
    while (chain->first != kNone) RemoveFirst(*chain);
    DropTail();
}

bool GroupLoadTable::RemoveFirstOfCase(std::int32_t caseNumber)
{
    Chain* const chain = chains_.Find(caseNumber);
    if (chain == nullptr || chain->first == kNone) return false;
    RemoveFirst(*chain);
    DropTail();
    return true;
}

// No load that is left is linked to one at the end that is removed: loads go from the front of
// their chain.
void GroupLoadTable::DropTail()
{
    const std::size_t size = kept_.DropTail();
    loads_.Truncate(size);
    nexts_.Truncate(size);
}

}  // namespace tamur
