#include "model/group_load_table.h"

namespace tamur {

void GroupLoadTable::Append(const GroupLoad& load)
{
    LinkUpTo(loads_.Size());
    loads_.Prepare() = load;
    LinkUpTo(loads_.Size() + 1);
    loads_.Commit();
}

void GroupLoadTable::LinkUpTo(std::size_t size)
{
    for (std::size_t i = links_.Size(); i < size; ++i) {
        const std::uint32_t rank = static_cast<std::uint32_t>(i);
        (void)links_.Prepare();
        const auto [chain, isNew] = chains_.try_emplace(loads_[i].caseNumber, Chain{rank, rank});
        if (!isNew) {
            links_[chain->second.last].next = rank;
            chain->second.last = rank;
        }
        links_.Commit();
    }
}

const GroupLoad& GroupLoadTable::FirstOfCase(std::int32_t caseNumber)
{
    LinkUpTo(loads_.Size());
    return loads_[chains_.at(caseNumber).first];
}

void GroupLoadTable::RemoveCase(std::int32_t caseNumber)
{
    LinkUpTo(loads_.Size());
    const auto chain = chains_.find(caseNumber);
    if (chain == chains_.end()) return;
    for (std::uint32_t rank = chain->second.first; rank != kNone; rank = links_[rank].next) {
        links_[rank].isRemoved = true;
    }
    chains_.erase(chain);
}

bool GroupLoadTable::RemoveFirstOfCase(std::int32_t caseNumber)
{
    LinkUpTo(loads_.Size());
    const auto chain = chains_.find(caseNumber);
    if (chain == chains_.end()) return false;
    Link& link = links_[chain->second.first];
    link.isRemoved = true;
    if (link.next == kNone) {
        chains_.erase(chain);
    } else {
        chain->second.first = link.next;
    }
    return true;
}

void GroupLoadTable::Settle()
{
    std::size_t kept = 0;
    for (std::size_t rank = 0; rank < loads_.Size(); ++rank) {
        if (rank < links_.Size() && links_[rank].isRemoved) continue;
        loads_[kept++] = loads_[rank];
    }
    loads_.Truncate(kept);
    links_.Truncate(0);
    chains_.clear();
}

}  // namespace tamur
