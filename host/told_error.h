// What went wrong, for people in each language.
#pragma once

#include <stdexcept>
#include <string>

#include "host/language.h"

namespace tamur::host {

// what() is English.
class ToldError : public std::runtime_error {
 public:
    ToldError(const std::string& english, std::string french)
        : std::runtime_error(english), french_(std::move(french))
    {
    }

    [[nodiscard]] std::string In(Language language) const
    {
        return language == Language::kFrench ? french_ : what();
    }

 private:
    std::string french_;
};

}  // namespace tamur::host
