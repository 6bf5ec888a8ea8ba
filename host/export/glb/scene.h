// The tree of a glTF scene: nodes as they are written, and the branches that they hang on.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

#include "host/json/json_writer.h"
#include "host/geometry/frames.h"

namespace tamur::host {

class Scene {
 public:
    explicit Scene(JsonWriter& out) : out_(out)
    {
        out_.Key("nodes");
        out_.Begin('[');
    }

    // A node with what write() gives beside its name. Its place.
    template <class Write>
    std::uint32_t Add(std::string_view name, const Write& write)
    {
        out_.Begin('{');
        out_.Key("name");
        out_.Text(name);
        write();
        out_.End('}');
        return count_++;
    }
    // One above others; nothing when there are none.
    template <class Write>
    void AddBranch(std::string_view name, const std::vector<std::uint32_t>& children,
                   std::vector<std::uint32_t>& parent, const Write& write)
    {
        if (children.empty()) return;
        parent.push_back(Add(name, [&] {
            WriteChildren(children);
            write();
        }));
    }
    void WriteChildren(const std::vector<std::uint32_t>& children)
    {
        if (children.empty()) return;
        out_.Key("children");
        out_.Begin('[');
        for (const std::uint32_t child : children) out_.Number(child);
        out_.End(']');
    }
    // The last node is the root.
    void End()
    {
        out_.End(']');
        out_.Key("scenes");
        out_.Begin('[');
        out_.Begin('{');
        out_.Array("nodes", count_ - 1);
        out_.End('}');
        out_.End(']');
        out_.Key("scene");
        out_.Number(0);
    }

 private:
    JsonWriter& out_;
    std::uint32_t count_ = 0;
};

// The turn from the model's axes to those of the frame, as glTF has it: x, y, z, w.
[[nodiscard]] std::array<float, 4> QuaternionOf(const Frame& frame);

}  // namespace tamur::host
