// Which fields of two records differ.
#pragma once

#include <tamur/records.h>

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "host/diff/record_hash.h"

namespace tamur::host {

// The value of a field: nothing for a null text; a number, a text in UTF-8, a point, or several.
struct Value {
    std::variant<std::monostate, long long, double, std::string, TMR3DPnt, std::vector<Value>> is;
};

[[nodiscard]] Value ToValue(BSTR text);
[[nodiscard]] inline Value ToValue(double number)
{
    return {number};
}
[[nodiscard]] inline Value ToValue(const TMR3DPnt& point)
{
    return {point};
}
template <class Number>
requires(std::is_integral_v<Number> || std::is_enum_v<Number>) [[nodiscard]] Value
    ToValue(Number number)
{
    return {static_cast<long long>(number)};
}
template <class Element>
[[nodiscard]] Value ToValue(Element* values, int count)
{
    std::vector<Value> all;
    for (int i = 0; i < count; ++i) all.push_back(ToValue(values[i]));
    return {std::move(all)};
}

struct FieldChange {
    // The published names: "ElemLabels.tabLabels[0]", "Geometrie.start". What is referred to is one
    // field, "StartSection", with its names; where these are equal its own fields follow.
    std::string field;
    Value before;
    Value after;
    // A whole outline that has the same corners and begins at another.
    bool isTurned = false;
};

// From the place of the first point that is elsewhere to its place now.
struct Movement {
    TMR3DPnt before;
    TMR3DPnt after;
    double distance;
};
// Nothing when there is any other change than points that are elsewhere.
[[nodiscard]] std::optional<Movement> MovementIn(const std::vector<FieldChange>& changes);

// The same corners in the same order, from another one on.
[[nodiscard]] bool IsTurned(const TMR3DPnt* before, const TMR3DPnt* after, int count,
                            const Tolerance& tolerance);

class FieldComparison {
 public:
    // `identities` are for the record after.
    FieldComparison(const Tolerance& tolerance, const Identities& identities)
        : tolerance_(tolerance), identities_(identities)
    {
    }

    template <class PublicRecord>
    [[nodiscard]] std::vector<FieldChange> Compare(PublicRecord& before, PublicRecord& after)
    {
        changes_.clear();
        CompareParts(before, after, std::string());
        return std::move(changes_);
    }

 private:
    // Where the fields of a record are, in their order.
    struct Places {
        struct Place {
            void* value;
            int count;
        };
        std::vector<Place> all;

        template <class Type>
        void Field(const char*, Type& value)
        {
            all.push_back({&value, 1});
        }
        template <class Type>
        void Array(const char*, Type* values, int count)
        {
            all.push_back({values, count});
        }
    };

    // Visits the record before, with the same places of the one after at hand.
    struct Pairs {
        FieldComparison& comparison;
        const std::string& path;
        const Places::Place* after;
        std::size_t firstChange;

        template <class Type>
        void Field(const char* name, Type& before)
        {
            Type& other = *static_cast<Type*>((after++)->value);
            if (!IsDerived(name)) comparison.CompareField(before, other, path + name);
        }
        template <class Type>
        void Array(const char* name, Type* before, int count)
        {
            const auto [values, otherCount] = *after++;
            Type* const others = static_cast<Type*>(values);
            if (count == otherCount) {
                comparison.CompareArrays(before, others, count, path + name);
                return;
            }
            comparison.ForgetCounts(firstChange, path);
            comparison.changes_.push_back(
                {path + name, ToValue(before, count), ToValue(others, otherCount)});
        }
    };

    template <class PublicRecord>
    void CompareParts(PublicRecord& before, PublicRecord& after, const std::string& path)
    {
        Places places;
        VisitFields(after, places);
        VisitFields(before, Pairs{*this, path, places.all.data(), changes_.size()});
    }

    template <class Type, std::size_t kCount>
    void CompareField(Type (&before)[kCount], Type (&after)[kCount], const std::string& path)
    {
        CompareArrays(before, after, static_cast<int>(kCount), path);
    }
    template <class Type>
    void CompareField(Type& before, Type& after, const std::string& path)
    {
        if constexpr (kIsReferredTo<Type>) {
            CompareReferredTo(before, after, path);
        } else if constexpr (std::is_class_v<Type> && !std::is_same_v<Type, TMR3DPnt>) {
            CompareParts(before, after, path + '.');
        } else if (!AreSame(before, after)) {
            changes_.push_back({path, ToValue(before), ToValue(after)});
        }
    }

    template <class Type>
    void CompareArrays(Type* before, Type* after, int count, const std::string& path)
    {
        if constexpr (std::is_same_v<Type, TMR3DPnt>) {
            if (IsTurned(before, after, count, tolerance_)) {
                changes_.push_back({path, ToValue(before, count), ToValue(after, count), true});
                return;
            }
        }
        for (int i = 0; i < count; ++i) {
            if (AreSame(before[i], after[i])) continue;
            changes_.push_back(
                {path + '[' + std::to_string(i) + ']', ToValue(before[i]), ToValue(after[i])});
        }
    }

    template <class Type>
    void CompareReferredTo(Type& before, Type& after, const std::string& path)
    {
        if (DigestOf(before) == identities_.Of(DigestOf(after))) return;
        WithKey(before, [&](const char*, BSTR nameBefore) {
            WithKey(after, [&](const char*, BSTR nameAfter) {
                if (AreSame(nameBefore, nameAfter)) return CompareParts(before, after, path + '.');
                changes_.push_back({path, ToValue(nameBefore), ToValue(nameAfter)});
            });
        });
    }

    template <class Type>
    [[nodiscard]] std::uint64_t DigestOf(Type& referredTo) const
    {
        RecordHash hash(tolerance_, nullptr);
        VisitFields(referredTo, hash);
        return hash.Value();
    }

    // The number of the values changes with the values: that is one change.
    void ForgetCounts(std::size_t first, const std::string& path);

    [[nodiscard]] static bool AreSame(BSTR before, BSTR after)
    {
        return (before == nullptr) == (after == nullptr) && ViewOf(before) == ViewOf(after);
    }
    [[nodiscard]] bool AreSame(double before, double after) const
    {
        return tolerance_.AreSameReals(before, after);
    }
    [[nodiscard]] bool AreSame(const TMR3DPnt& before, const TMR3DPnt& after) const
    {
        return tolerance_.AreSamePoints(before, after);
    }
    template <class Number>
    requires(std::is_integral_v<Number> || std::is_enum_v<Number>)
        [[nodiscard]] static bool AreSame(Number before, Number after)
    {
        return before == after;
    }

    const Tolerance& tolerance_;
    const Identities& identities_;
    std::vector<FieldChange> changes_;
};

}  // namespace tamur::host
