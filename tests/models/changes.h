// Every small change of a text, by number.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tamur::test {

// Every truncation; every byte changed to each of twelve others; every token replaced by each of
// thirteen oddities; every line deleted, doubled, or swapped with the next.
class Changes {
 public:
    explicit Changes(std::string text);

    [[nodiscard]] std::size_t Count() const;
    [[nodiscard]] std::string Apply(std::size_t number) const;

 private:
    struct Span {
        std::size_t begin;
        std::size_t end;
    };

    [[nodiscard]] std::string ChangeByte(std::size_t at, std::size_t how) const;
    [[nodiscard]] std::string Replace(Span span, const std::string& by) const;
    [[nodiscard]] std::string ChangeLine(std::size_t line, std::size_t how) const;

    std::string text_;
    std::vector<Span> tokens_;
    std::vector<Span> lines_;  // with their line ends
};

}  // namespace tamur::test
