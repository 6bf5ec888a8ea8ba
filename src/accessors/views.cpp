#include "accessors/views.h"

#include <algorithm>
#include <cstring>

namespace tamur {

const Model& NoModel()
{
    static const Model model;
    return model;
}

namespace {

// How much room a copy of the text takes.
std::size_t RoomOf(Text text)
{
    return static_cast<std::size_t>(EndOf(text) - PlaceOf(text));
}

Text CopyTo(char*& room, Text text)
{
    const Text copy = TextAt(room);
    std::memcpy(room, PlaceOf(text), RoomOf(text));
    room += RoomOf(text);
    return copy;
}

}  // namespace

CasesCopy::CasesCopy(const CaseTable& table)
{
    const std::vector<LoadCase>& all = table.Cases();
    const auto isUsable = [](const LoadCase& loadCase) {
        return loadCase.type != case_type::kDisabled;
    };
    cases_.reserve(static_cast<std::size_t>(std::count_if(all.begin(), all.end(), isUsable)));
    std::copy_if(all.begin(), all.end(), std::back_inserter(cases_), isUsable);

    std::size_t size = 0;
    for (const LoadCase& loadCase : cases_) size += RoomOf(loadCase.title) + RoomOf(loadCase.code);
    texts_ = std::make_unique<char[]>(size);
    char* room = texts_.get();
    for (LoadCase& loadCase : cases_) {
        loadCase.title = CopyTo(room, loadCase.title);
        loadCase.code = CopyTo(room, loadCase.code);
    }
}

}  // namespace tamur
