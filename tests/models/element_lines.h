// Lines of "#Elements", and models made of them.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "support/model_text.h"

namespace tamur::test {

// One element line: the head that all kinds share, and the columns of the kind. The four columns
// of the head that nobody reads hold values, so that taking them for others is noticed.
class ElementLine {
 public:
    explicit ElementLine(int kind, LONG identifier = 7)
        : start_(std::to_string(kind) + " " + std::to_string(identifier) + " 601")
    {
    }

    // Each point as "x y z".
    ElementLine& Points(std::initializer_list<std::string_view> points)
    {
        points_.assign(points.begin(), points.end());
        return *this;
    }
    ElementLine& Labels(std::initializer_list<std::string_view> labels)
    {
        labels_.assign(labels.begin(), labels.end());
        return *this;
    }
    // Everything after the head, as it is.
    ElementLine& Columns(std::string_view columns)
    {
        columns_ = columns;
        return *this;
    }

    // NOLINTNEXTLINE(google-explicit-constructor): is put where lines of text are listed
    operator std::string() const
    {
        std::string text =
            start_ + " " + std::to_string(points_.size()) + " " + std::to_string(labels_.size());
        for (const std::string& point : points_) text += " " + point;
        for (const std::string& label : labels_) text += " " + label;
        return text + " -602 603 604 " + columns_;
    }

 private:
    std::string start_;
    std::vector<std::string> points_;
    std::vector<std::string> labels_;
    std::string columns_;
};

// A reader that has imported a model with nothing but those elements.
inline ComPtr<ITAMURStructureReader> ImportedElements(const std::vector<std::string>& lines)
{
    return Imported(ModelText().Elements(lines));
}

// What element lines become has the identifier of its line or its labels; no other record has.
template <class PublicRecord>
constexpr bool IsElement()
{
    if constexpr (requires(PublicRecord record) { record.identifier; }) return true;
    if constexpr (requires(PublicRecord record) { record.ElemLabels; }) return true;
    return false;
}

// Calls use(range) for each of their tables.
template <class Use>
void ForEachElementTable(ITAMURStructureReader& reader, Use use)
{
    ForEachTable(reader, [&](const auto& table) {
        if constexpr (IsElement<typename std::decay_t<decltype(table)>::PublicRecord>()) use(table);
    });
}

// How many records they hold together.
inline LONG CountElements(ITAMURStructureReader& reader)
{
    LONG count = 0;
    ForEachElementTable(reader, [&](const auto& table) { count += table.Size(); });
    return count;
}

}  // namespace tamur::test
