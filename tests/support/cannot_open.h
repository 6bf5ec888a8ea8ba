// The one message box that the component has.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "support/message_boxes.h"

namespace tamur::test {

// Exactly one box was shown, the one for a file at that path (UTF-8).
inline void ExpectCannotOpen(const CaughtMessageBoxes& boxes, const std::string& path)
{
    ASSERT_EQ(boxes.Boxes().size(), 1u);
    const auto box = boxes.Boxes()[0];
    EXPECT_EQ(box.caption, "Importation Tamur Structure");
    EXPECT_EQ(box.text, "Impossible d'ouvrir le fichier Tamur (" + path + ").");
    EXPECT_EQ(box.style, 0u);
    EXPECT_FALSE(box.hasOwner);
}

}  // namespace tamur::test
