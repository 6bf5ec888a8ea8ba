// JSON with one value per line.
#pragma once

#include <ostream>
#include <streambuf>

namespace tamur::tool {

// Lays out what a stream writes into it, and passes it on.
class PrettyJson final : public std::streambuf {
 public:
    explicit PrettyJson(std::ostream& out) : out_(out) {}

 private:
    int_type overflow(int_type c) override;
    std::streamsize xsputn(const char* text, std::streamsize size) override;

    void Take(char c);
    void TakeOfText(char c);
    void BeginLine();

    std::ostream& out_;
    int depth_ = 0;
    bool isInText_ = false;
    bool isEscaped_ = false;
    bool hasOpened_ = false;  // what is empty stays on its line
};

}  // namespace tamur::tool
