#pragma once

namespace tamur {

// Switches are written as oui or vrai, in either case.
constexpr bool IsOn(char c)
{
    return c == 'O' || c == 'o' || c == 'V' || c == 'v';
}

}  // namespace tamur
