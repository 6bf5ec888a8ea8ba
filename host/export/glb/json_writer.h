// JSON that is written as it comes: what it describes may be larger than memory should hold twice.
#pragma once

#include <array>
#include <charconv>
#include <concepts>
#include <ostream>
#include <string>
#include <string_view>

namespace tamur::host {

class JsonWriter {
 public:
    explicit JsonWriter(std::ostream& out) : out_(out) { text_.reserve(2 * kFlush); }

    void Begin(char bracket)
    {
        Separate();
        text_ += bracket;
        isFirst_ = true;
    }
    void End(char bracket)
    {
        text_ += bracket;
        isFirst_ = false;
        if (text_.size() > kFlush) Flush();
    }
    void Key(std::string_view name)
    {
        Separate();
        text_ += '"';
        text_ += name;
        text_ += "\":";
        isFirst_ = true;
    }
    // JSON has no word for what is no finite number: "inf", "-inf", "nan".
    void Number(double number);
    template <std::integral Whole>
    void Number(Whole number)
    {
        Separate();
        AppendNumber(number);
    }
    // UTF-8.
    void Text(std::string_view text);
    void Null() { AppendWord("null"); }
    void True() { AppendWord("true"); }
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
    [[nodiscard]] std::uint64_t Size() const { return written_ + text_.size(); }

 private:
    static constexpr std::size_t kFlush = 1 << 16;

    void Separate()
    {
        if (!isFirst_) text_ += ',';
        isFirst_ = false;
    }
    void AppendWord(std::string_view word)
    {
        Separate();
        text_ += word;
    }
    template <class Value>
    void AppendNumber(Value number)
    {
        std::array<char, 32> digits;
        const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
        text_.append(digits.data(), end);
    }

    std::ostream& out_;
    std::string text_;
    std::uint64_t written_ = 0;
    bool isFirst_ = true;  // of its list, or after its key
};

}  // namespace tamur::host
