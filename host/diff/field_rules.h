// What a comparison has to know of fields, by their published names and types.
#pragma once

#include <tamur/records.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <type_traits>

namespace tamur::host {

template <class Type, class... Types>
inline constexpr bool kIsOneOf = (std::is_same_v<Type, Types> || ...);

// Served within the records that use them. There they are what is referred to, not a part.
template <class Value>
inline constexpr bool kIsReferredTo = kIsOneOf<Value, TMRMaterial, TMRSectionGeometry, TMRAttache>;

// Says again what other fields say: the distance of a bar's points, cut to a whole number.
[[nodiscard]] constexpr bool IsDerived(std::string_view field)
{
    return field == "RealLength";
}

// Says how long an array of its record is.
[[nodiscard]] constexpr bool IsCount(std::string_view field)
{
    constexpr std::array<std::string_view, 6> kCounts = {"nbPoints", "nbLabels", "iPointsSpectrum",
                                                         "iNbCmb",   "iNbCases", "iNrOfModes"};
    return std::find(kCounts.begin(), kCounts.end(), field) != kCounts.end();
}

// Calls use(name, value) for the field that tells a record from others of its table. For groups it
// does so together with the kind of their elements, `Elem`.
template <class PublicRecord, class Use>
auto WithKey(PublicRecord& record, Use&& use)
{
    if constexpr (requires { record.identifier; }) {
        return use("identifier", record.identifier);
    } else if constexpr (requires { record.iNumCas; }) {
        return use("iNumCas", record.iNumCas);
    } else if constexpr (requires { record.lIdentifier; }) {
        return use("lIdentifier", record.lIdentifier);
    } else if constexpr (requires { record.Num; }) {
        return use("Num", record.Num);
    } else if constexpr (requires { record.MaterialName; }) {
        return use("MaterialName", record.MaterialName);
    } else if constexpr (requires { record.SectionLib; }) {
        return use("SectionLib", record.SectionLib);
    } else {
        return use("AttacheLib", record.AttacheLib);
    }
}

template <class PublicRecord>
inline constexpr bool kIsGroup = std::is_same_v<PublicRecord, TMRGroupe>;

// Numbers of elements are given one after the other, and nothing is called by them: an element
// whose contents have another number is still that element. Names, and the numbers of groups and
// cases, are what others call them by.
template <class PublicRecord>
inline constexpr bool kIsElement = requires(PublicRecord& record)
{
    record.identifier;
}
|| (
       requires(PublicRecord & record) { record.lIdentifier; } &&
       !requires(PublicRecord & record) { record.iNumCas; });

}  // namespace tamur::host
