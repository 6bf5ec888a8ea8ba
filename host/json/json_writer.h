// JSON that is written as it comes: what it describes may be larger than memory should hold twice.
#pragma once

#include <tamur/utf8.h>

#include <algorithm>
#include <charconv>
#include <concepts>
#include <ostream>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tamur::host {

class JsonWriter {
 public:
    explicit JsonWriter(std::ostream& out) : out_(out) {}

    void Begin(char bracket)
    {
        Separate();
        Put(bracket);
        isFirst_ = true;
    }
    void End(char bracket)
    {
        Put(bracket);
        isFirst_ = false;
    }
    // What comes next begins a line.
    void NextLine()
    {
        if (!isFirst_) Put(',');
        Put('\n');
        isFirst_ = true;
    }
    void EndLine() { Put('\n'); }
    // A short name that needs no escapes.
    void Key(std::string_view name)
    {
        char* at = Room(name.size() + 4);
        if (!isFirst_) *at++ = ',';
        *at++ = '"';
        at = std::copy(name.begin(), name.end(), at);
        *at++ = '"';
        *at++ = ':';
        Use(at);
        isFirst_ = true;
    }
    // JSON has no word for what is no finite number: "inf", "-inf", "nan".
    void Number(double number);
    void Number(float number)
    {
        Separate();
        PutNumber(number);
    }
    template <std::integral Whole>
    void Number(Whole number)
    {
        Separate();
        PutNumber(number);
    }
    // UTF-8, and as the records have it. Control characters are escaped, those after ASCII too:
    // terminals obey them.
    void Text(std::string_view text);
    void Text(WideStringView text);
    void Null() { PutWord("null"); }
    void True() { PutWord("true"); }
    template <class... Numbers>
    void Array(std::string_view key, Numbers... numbers)
    {
        Key(key);
        Begin('[');
        (Number(numbers), ...);
        End(']');
    }

    void Flush();
    // Of all that was written.
    [[nodiscard]] std::uint64_t Size() const { return written_ + used_; }

 private:
    void Separate()
    {
        if (!isFirst_) Put(',');
        isFirst_ = false;
    }
    // A place for so many characters, fewer than the buffer has, and how far it was used.
    char* Room(std::size_t size)
    {
        if (buffer_.size() - used_ < size) Flush();
        return buffer_.data() + used_;
    }
    void Use(const char* end) { used_ = static_cast<std::size_t>(end - buffer_.data()); }
    void Put(char c)
    {
        if (used_ == buffer_.size()) Flush();
        buffer_[used_++] = c;
    }
    void Put(std::string_view text);
    void PutCharacter(char c);
    void PutEscape(unsigned char code);
    void PutWord(std::string_view word)
    {
        Separate();
        Put(word);
    }
    template <class Value>
    void PutNumber(Value number)
    {
        constexpr std::size_t kMostDigits = 32;
        char* const at = Room(kMostDigits);
        Use(std::to_chars(at, at + kMostDigits, number).ptr);
    }

    std::ostream& out_;
    std::vector<char> buffer_ = std::vector<char>(1 << 17);
    std::size_t used_ = 0;
    std::uint64_t written_ = 0;
    bool isFirst_ = true;  // of its list, or after its key
};

}  // namespace tamur::host
