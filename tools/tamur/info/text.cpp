#include "text.h"

#include <algorithm>
#include <string_view>

#include "../setting_words.h"
#include "../sums/text.h"
#include "host/findings/plain_text.h"
#include "host/kinds.h"

namespace tamur::tool {
namespace {

using host::Language;
using host::Name;

// Of each list of sums: the whole is to fit a screen or two, however many there are.
constexpr std::size_t kShownSums = 12;

constexpr Name kFile = {{"file", "fichier"}};
constexpr Name kVersion = {{"version", "version"}};
constexpr Name kServicePack = {{"service pack", "service pack"}};
constexpr Name kWorkSpace = {{"working space", "espace de travail"}};
constexpr Name kTolerance = {{"tolerance", "tolérance"}};
constexpr Name kRigid = {{"rigid in bending", "rigide en flexion"}};
constexpr Name kExtent = {{"extent in ", "étendue en "}};
constexpr Name kTo = {{" to ", " à "}};
constexpr Name kSkipped = {{"skipped combinations", "combinaisons omises"}};
constexpr Name kMessage = {{"message", "message"}};
constexpr Name kTimes = {{" times)", " fois)"}};
constexpr Name kFurther = {{"further messages", "autres messages"}};
constexpr Name kFindings = {{"findings", "constats"}};
constexpr Name kNone = {{"none", "aucun"}};
constexpr Name kSeeCheck = {{" (see tamur check)", " (voir tamur check)"}};

// "appui ponctuel" becomes "appuis ponctuels".
std::string FrenchPlural(std::string_view noun)
{
    std::string plural;
    const auto end = [&plural] {
        if (plural.ends_with("au")) {
            plural += 'x';
        } else if (!plural.ends_with('s')) {
            plural += 's';
        }
    };
    for (const char c : noun) {
        if (c == ' ') end();
        plural += c;
    }
    end();
    return plural;
}

class InfoText {
 public:
    InfoText(const ModelSummary& summary, Language language, std::ostream& out)
        : summary_(summary), language_(language), out_(out)
    {
    }

    void Write()
    {
        // Sums of decimal numbers show as they were meant.
        const auto before = out_.precision(12);
        WriteSettings();
        WriteBox();
        out_ << '\n';
        WriteCounts();
        WriteMessages();
        WriteFindings();
        out_ << '\n';
        WriteSums(summary_.sums, summary_.sections, language_, kShownSums, out_);
        out_.precision(before);
    }

 private:
    [[nodiscard]] std::string_view In(const Name& name) const { return name.In(language_); }

    std::ostream& Entry(std::string_view name)
    {
        constexpr std::ptrdiff_t kWidth = 28;
        // Bytes that go on with a character take no place.
        const auto width = std::count_if(name.begin(), name.end(), [](char c) {
            return (static_cast<unsigned char>(c) & 0xC0) != 0x80;
        });
        const auto blanks = std::max<std::ptrdiff_t>(kWidth - width, 1);
        return out_ << name << std::string(static_cast<std::size_t>(blanks), ' ');
    }

    void WriteSettings()
    {
        Entry(In(kFile)) << host::PlainText(summary_.file, summary_.file.size()) << '\n';
        Entry(In(kVersion)) << host::PlainText(summary_.version) << '\n';
        if (summary_.servicePack >= 0) Entry(In(kServicePack)) << summary_.servicePack << '\n';
        const TMRStructureData& settings = summary_.settings;
        Entry(In(kWorkSpace)) << WorkSpaceWords(settings.espaceDeTravail, language_) << '\n';
        Entry(In(kTolerance)) << settings.tol3D << " m\n";
        Entry(In(kRigid)) << YesOrNo(settings.rigideEnFlexion == TMRStructureRigide, language_)
                          << '\n';
    }

    void WriteBox()
    {
        const TMR3DPnt &low = summary_.box.low, &high = summary_.box.high;
        if (summary_.box.IsEmpty()) return;
        WriteExtent('x', low.x, high.x);
        WriteExtent('y', low.y, high.y);
        WriteExtent('z', low.z, high.z);
    }
    void WriteExtent(char axis, double low, double high)
    {
        Entry(std::string(In(kExtent)) + axis) << low << In(kTo) << high << " m\n";
    }

    void WriteCounts()
    {
        for (const TableCount& table : summary_.counts) {
            if (table.count != 0) Entry(NameOf(table)) << table.count << '\n';
        }
        if (summary_.skippedCombinations != 0) {
            Entry(In(kSkipped)) << summary_.skippedCombinations << '\n';
        }
    }
    [[nodiscard]] std::string NameOf(const TableCount& table) const
    {
        if (language_ != Language::kFrench) return table.plainName;
        return FrenchPlural(NounOf(host::KindOfTable(table.table), language_));
    }

    void WriteMessages()
    {
        for (const CountedMessage& message : summary_.messages.first) {
            Entry(In(kMessage)) << host::PlainText(message.text);
            if (message.count > 1) out_ << " (" << message.count << In(kTimes);
            out_ << '\n';
        }
        if (summary_.messages.further != 0) {
            Entry(In(kFurther)) << summary_.messages.further << '\n';
        }
    }

    void WriteFindings()
    {
        Entry(In(kFindings));
        std::string_view separator;
        for (std::size_t i = 0; i < summary_.findings.size(); ++i) {
            const std::size_t count = summary_.findings[i];
            if (count == 0) continue;
            out_ << separator << count << ' ' << host::NameOf(kSeverities[i], language_)
                 << (count > 1 ? "s" : "");
            separator = ", ";
        }
        out_ << In(separator.empty() ? kNone : kSeeCheck) << '\n';
    }

    const ModelSummary& summary_;
    Language language_;
    std::ostream& out_;
};

}  // namespace

void WriteInfo(const ModelSummary& summary, Language language, std::ostream& out)
{
    InfoText(summary, language, out).Write();
}

}  // namespace tamur::tool
