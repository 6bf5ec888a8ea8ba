// A C++ host: imports a model file and says what it holds.
//
//     cpp_host COMPONENT FILE      (TAMURReader.dll or libTAMURReader.so)
#include <tamur/component.h>
#include <tamur/ranges.h>

#include <cstdio>
#include <exception>
#include <filesystem>

namespace {

// The first label of the model's nodes and bars; empty when there is none. Labels are lent: they
// live as long as the reader, so the text is copied.
std::string FirstLabel(ITAMURStructureReader& reader)
{
    const auto firstOf = [](const TMRElementLabels& labels) {
        if (labels.nbLabels == 0) return std::string();
        const auto text = tamur::ViewOf(labels.tabLabels[0]);
        return std::filesystem::path(text).string();  // in the character set of file names
    };
    for (const auto& node : tamur::Nodes(reader)) {
        if (const std::string label = firstOf(node->ElemLabels); !label.empty()) return label;
    }
    for (const auto& bar : tamur::Filaires(reader)) {
        if (const std::string label = firstOf(bar->ElemLabels); !label.empty()) return label;
    }
    return {};
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: cpp_host COMPONENT FILE\n");
        return 2;
    }
    try {
        const tamur::Component component(argv[1]);
        const auto reader = component.CreateReader();
        const tamur::String file(std::filesystem::path(argv[2]).string<OLECHAR>().c_str());
        // A file that cannot be imported has been reported in a message box.
        if (reader->Import(file.Get()) != S_OK) return 1;
        std::printf("nodes: %ld\n", static_cast<long>(tamur::Nodes(*reader).Size()));
        std::printf("bars: %ld\n", static_cast<long>(tamur::Filaires(*reader).Size()));
        std::printf("first label: %s\n", FirstLabel(*reader).c_str());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "cpp_host: %s\n", error.what());
        return 1;
    }
}
