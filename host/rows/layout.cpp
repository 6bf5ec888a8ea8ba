#include "host/rows/layout.h"

#include <host/row_layout.h>

#include <cstring>

namespace tamur::host {

std::string RowLayout()
{
    std::string text;
    for (const ColumnPlace& place : kColumnPlaces) {
        const bool isColumn = std::strchr(place.name, '.') != nullptr;
        text += place.name;
        if (isColumn) text += ' ' + std::to_string(place.offset);
        text += ' ' + std::to_string(place.size) + '\n';
    }
    return text;
}

}  // namespace tamur::host
