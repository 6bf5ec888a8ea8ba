// A C++ host: imports a model file and says what it holds.
//
//     cpp_host COMPONENT FILE      (TAMURReader.dll or libTAMURReader.so)
#include <tamur/component.h>
#include <tamur/ranges.h>

#include <cstdio>
#include <exception>
#include <filesystem>

namespace {

// In the character set of file names.
std::string Text(BSTR text)
{
    return std::filesystem::path(tamur::ViewOf(text)).string();
}

// The first label of the model's nodes and bars; empty when there is none. Labels are lent: they
// live as long as the reader, so the text is copied.
std::string FirstLabel(ITAMURStructureReader& reader)
{
    const auto firstOf = [](const TMRElementLabels& labels) {
        if (labels.nbLabels == 0) return std::string();
        return Text(labels.tabLabels[0]);
    };
    for (const auto& node : tamur::Nodes(reader)) {
        if (const std::string label = firstOf(node->ElemLabels); !label.empty()) return label;
    }
    for (const auto& bar : tamur::Filaires(reader)) {
        if (const std::string label = firstOf(bar->ElemLabels); !label.empty()) return label;
    }
    return {};
}

void PrintBars(ITAMURStructureReader& reader)
{
    for (const auto& bar : tamur::Filaires(reader)) {
        std::printf("  %ld: %s in %s, length %ld\n", static_cast<long>(bar->identifier),
                    Text(bar->StartSection.SectionLib).c_str(),
                    Text(bar->FilaireMaterial.MaterialName).c_str(),
                    static_cast<long>(bar->RealLength));
    }
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
        PrintBars(*reader);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "cpp_host: %s\n", error.what());
        return 1;
    }
}
