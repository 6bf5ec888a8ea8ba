// What all kinds of elements have in common: a head, points, labels, and columns of their own.
#pragma once

#include <algorithm>
#include <cstddef>
#include <type_traits>

#include "import/elements/labels.h"
#include "import/file/model_file.h"
#include "import/file/read_list.h"
#include "import/scan/stream_scanner.h"
#include "model/model.h"

namespace tamur {

template <class Record>
concept HasPosition = requires(Record record)
{
    record.position;
};
template <class Record>
concept HasSegment = requires(Record record)
{
    record.line;
};
template <class Record>
concept HasPolygon = requires(Record record)
{
    record.outline;
};
template <class Record>
concept HasLabels = requires(Record record)
{
    record.labels;
};

template <class Record>
concept HasColumnsApart = requires(Record record)
{
    record.columns;
};

// A kind that drops some shapes: BrokenShapeRule says which finding that is.
template <class Record>
concept HasShapeRule = requires(const Record record)
{
    BrokenShapeRule(record);
};

// The points that a line must announce.
template <class Record>
inline constexpr std::int32_t kPointsNeeded = HasSegment<Record>    ? 2
                                              : HasPosition<Record> ? 1
                                                                    : 0;

// Reads the line after its kind into an empty record. The members of the record decide what
// becomes of points and labels; ReadColumns, overloaded for each record, reads the rest.
class ElementReader {
 public:
    ElementReader(StreamScanner& tokens, const Line& line, Model& model, const ModelFile& file)
        : tokens_(tokens), line_(line), model_(model), file_(file)
    {
    }

    // False when the line is to be dropped.
    template <class Record>
    bool Read(Record& record)
    {
        std::int32_t pointCount = 0;
        std::int32_t labelCount = 0;
        tokens_ >> record.identifier;
        tokens_.Skip<std::uint16_t>() >> pointCount >> labelCount;
        if (!line_.Holds(pointCount) || labelCount > kLargestCount) {
            return Drop(Finding::kCountBeyondLine);
        }
        pointCount = std::max(pointCount, 0);
        if (pointCount < kPointsNeeded<Record>) return Drop(Finding::kTooFewPoints);
        ReadGeometry(pointCount, record);
        if constexpr (HasShapeRule<Record>) {
            if (const auto broken = BrokenShapeRule(record)) return Drop(*broken);
        }
        if constexpr (HasLabels<Record>) {
            Keep(ReadLabels(tokens_, labelCount, model_.arena), record.labels);
        } else {
            SkipLabels(tokens_, labelCount);
        }
        tokens_.Skip<std::int32_t>().template Skip<std::uint32_t>().template Skip<std::uint32_t>();
        if constexpr (HasColumnsApart<Record>) {
            ReadColumnsApart(record);
        } else {
            ReadColumns(tokens_, model_, file_, record);
        }
        if (tokens_.Failed()) file_.Report(Finding::kUnreadableColumn);
        return true;
    }

 private:
    bool Drop(Finding finding)
    {
        file_.Report(finding);
        return false;
    }

    void Keep(Labels labels, Labels& kept) { kept = labels; }
    void Keep(Labels labels, LabelPlaces& kept)
    {
        kept = LabelPlaces(labels, model_.barTables->arena);
    }

    void ReadPoint(Point& point) { tokens_ >> point.x >> point.y >> point.z; }

    template <class Record>
    void ReadGeometry(std::int32_t count, Record& record)
    {
        if constexpr (HasPolygon<Record>) {
            record.outline = ReadPolygon(count);
            return;
        }
        if constexpr (HasSegment<Record>) {
            ReadPoint(record.line.start);
            ReadPoint(record.line.end);
        }
        if constexpr (HasPosition<Record>) ReadPoint(record.position);
        Point further;
        for (std::int32_t i = kPointsNeeded<Record>; i < count; ++i) ReadPoint(further);
    }

    // Of the corners that the line does not hold only the first is stored: it may be begun.
    Polygon ReadPolygon(std::int32_t count)
    {
        Polygon polygon;
        polygon.count = count;
        if (count == 0) return polygon;
        const std::size_t most =
            std::min(static_cast<std::size_t>(count), MostValues(tokens_.Left()) / 3 + 1);
        Point* const corners = model_.arena.ReserveArray<Point>(most);
        for (; polygon.held < count && !tokens_.Failed(); ++polygon.held) {
            corners[polygon.held] = Point();
            ReadPoint(corners[polygon.held]);
        }
        model_.arena.CommitArray(corners + polygon.held);
        if (polygon.held > 0) polygon.values = corners;
        return polygon;
    }

    // Columns that the line does not reach take no memory.
    template <class Record>
    void ReadColumnsApart(Record& record)
    {
        const bool areThere = !tokens_.Failed();
        std::remove_cvref_t<decltype(*record.columns)> columns;
        ReadColumns(tokens_, model_, file_, record, columns);
        if (areThere) record.columns = model_.arena.Copy(columns);
    }

    StreamScanner& tokens_;
    const Line& line_;
    Model& model_;
    const ModelFile& file_;
};

}  // namespace tamur
