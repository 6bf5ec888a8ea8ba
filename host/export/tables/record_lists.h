// The lists that records have: outlines, labels, combined cases, ...
#pragma once

#include <tamur/records.h>

#include <string_view>
#include <vector>

#include "host/export/tables/record_fields.h"

namespace tamur::host {

// Calls use(name, columns, count, cells) for every list of the record: what it is called, the names
// of its columns, how many rows it has and what gives the cells of one, cells(i, row).
template <class Use>
void VisitPoints(const char* name, const TMR3DPlanarElement& polygon, Use&& use)
{
    static const std::vector<std::string_view> kColumns = {"x", "y", "z"};
    use(name, kColumns, ValuesFor(polygon.nbPoints), [&polygon](int i, std::vector<Cell>& row) {
        const TMR3DPnt& point = polygon.tabPoints[i];
        for (const double value : {point.x, point.y, point.z}) row.push_back(value);
    });
}

template <class Use>
void VisitOutline(const TMRSectionEpure& outline, Use&& use)
{
    static const std::vector<std::string_view> kColumns = {"pTabPoints[1]", "pTabPoints[2]",
                                                           "pTabPoints[3]"};
    const int width = outline.Code == 'S' ? 3 : 2;
    use("epureSec", kColumns, ValuesFor(outline.nbPoints), [=](int i, std::vector<Cell>& row) {
        for (int k = 0; k < width; ++k) row.push_back(outline.pTabPoints[width * i + k]);
        row.resize(row.size() + static_cast<std::size_t>(3 - width));
    });
}

// The first label is in the row of its element.
template <class Use>
void VisitFurtherLabels(const TMRElementLabels& labels, Use&& use)
{
    static const std::vector<std::string_view> kColumns = {"tabLabels"};
    const int count = ValuesFor(labels.nbLabels - 1);
    use("ElemLabels", kColumns, count, [&labels](int i, std::vector<Cell>& row) {
        row.push_back(ToCell(labels.tabLabels[i + 1]));
    });
}

// Arrays of the same length side by side.
template <class Use, class... Values>
void VisitArrays(const char* name, const std::vector<std::string_view>& columns, int count,
                 Use&& use, const Values*... values)
{
    use(name, columns, ValuesFor(count),
        [=](int i, std::vector<Cell>& row) { (row.push_back(ToCell(values[i])), ...); });
}

template <class PublicRecord, class Use>
void VisitLists(const PublicRecord& record, Use&& use)
{
    if constexpr (requires { record.Surface.tabPoints; }) {
        VisitPoints("Surface", record.Surface, use);
    }
    if constexpr (requires { record.Geometrie.tabPoints; }) {
        VisitPoints("Geometrie", record.Geometrie, use);
    }
    if constexpr (requires { record.epureSec; }) VisitOutline(record.epureSec, use);
    if constexpr (requires { record.ElemLabels; }) VisitFurtherLabels(record.ElemLabels, use);
    if constexpr (requires { record.portCoef; }) {
        VisitArrays("portCoef", {"tabCoef"}, record.portCoef.nbPoints, use,
                    record.portCoef.tabCoef);
    }
    if constexpr (requires { record.pCoeff; }) {
        VisitArrays("Cas", {"pNumCas", "pCoeff"}, record.iNbCmb, use, record.pNumCas,
                    record.pCoeff);
    }
    if constexpr (requires { record.pCases; }) {
        VisitArrays("Cas", {"pCases"}, record.iNbCases, use, record.pCases);
    }
    if constexpr (requires { record.pPeriodsSpectrum; }) {
        VisitArrays("Spectrum", {"pPeriodsSpectrum", "pAccelerationSpectrum"},
                    record.iPointsSpectrum, use, record.pPeriodsSpectrum,
                    record.pAccelerationSpectrum);
    }
    if constexpr (requires { record.pDampingValues; }) {
        VisitArrays("Dampings", {"pDampingValues"}, record.iNrOfModes, use, record.pDampingValues);
    }
}

}  // namespace tamur::host
