// What is to be said about a line that became a record.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/file/balance.h"
#include "host/file/line_walk.h"
#include "host/findings/findings.h"

namespace tamur::host {

// A line of the file; the text need only be there while it is spoken of.
struct SpokenLine {
    Kind kind = Kind::kNone;
    std::uint32_t line = 0;
    std::uint32_t column = 0;  // characters before the text, when it is the rest of a cut line
    std::string_view text;
    std::int64_t identifier = Finding::kNoIdentifier;

    [[nodiscard]] Place PlaceOf(Span span) const
    {
        return {.line = line, .column = column + span.begin + 1, .length = span.end - span.begin};
    }
    [[nodiscard]] std::string TextOf(Span span) const;
    // The finding as one about this line.
    [[nodiscard]] Finding Of(Finding finding) const;
};

// How many records there are to refer to.
struct ReferenceCounts {
    std::uint64_t materials = 0;
    std::uint64_t sections = 0;
    std::uint64_t releases = 0;
};

class LineFindings {
 public:
    explicit LineFindings(Findings& findings) : findings_(findings) {}

    // What was read other than it is written. After a first problem nothing else is said: it may be
    // a consequence.
    void Add(const SpokenLine& line, const WalkedLine& walked, const ReferenceCounts& counts);

    // Whether there is anything to say, apart from references.
    [[nodiscard]] static bool IsPlain(const WalkedLine& walked)
    {
        return walked.problem.what == Problem::What::kFine && walked.oddities.empty() &&
               walked.utf8.end == 0;
    }

    // Whether the record is other than the line means.
    [[nodiscard]] static bool IsMisread(const WalkedLine& walked);

    // What depends on all lines.
    void Finish(const Balance& balance);

    [[nodiscard]] std::uint64_t DefaultMaterialUsers() const { return defaultMaterialUsers_; }
    [[nodiscard]] std::uint64_t DefaultSectionUsers() const { return defaultSectionUsers_; }
    [[nodiscard]] std::uint64_t NoReleaseUsers() const { return noReleaseUsers_; }

 private:
    // Lines that end before a column.
    struct Ends {
        std::uint64_t count = 0;
        std::vector<Finding> findings;  // of the first
    };

    // Lines with a number that has no meaning in the column.
    struct UnknownCodes {
        std::uint64_t count = 0;
        Finding first;
    };

    void AddProblem(const SpokenLine& line, const WalkedLine& walked);
    void AddMoved(const SpokenLine& line, const WalkedLine& walked);
    void AddEnd(const SpokenLine& line, const Problem& problem);
    void AddOddity(const SpokenLine& line, const Oddity& oddity);
    void AddReferences(const SpokenLine& line, const WalkedLine& walked,
                       const ReferenceCounts& counts);
    void AddUtf8(const SpokenLine& line, const WalkedLine& walked);

    // `values` makes the values, where the finding would be held.
    template <class Values>
    void Report(Code code, const SpokenLine& line, Span span, const Column* column, Values values);

    Findings& findings_;
    std::map<std::pair<Kind, const Column*>, Ends> ends_;
    std::map<std::pair<Kind, const Column*>, UnknownCodes> unknownCodes_;
    std::uint64_t defaultMaterialUsers_ = 0;
    std::uint64_t defaultSectionUsers_ = 0;
    std::uint64_t noReleaseUsers_ = 0;
    bool hasUtf8_ = false;
};

}  // namespace tamur::host
