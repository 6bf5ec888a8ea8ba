// Records of loads, and of the cases that are not plain static ones.
#pragma once

#include <cstdint>

#include "model/columns.h"
#include "model/geometry.h"
#include "model/list.h"
#include "model/text.h"

namespace tamur {

struct PointLoad {
    Point position;
    double force[3] = {};
    double moment[3] = {};
    std::uint32_t identifier = 0;
    std::int32_t caseNumber = 0;
    std::int32_t frame = 0;
};

struct LineLoad {
    Segment line;
    double intensityStart = 0;
    double intensityEnd = 0;
    double force[3] = {};
    double moment[3] = {};
    std::uint32_t identifier = 0;
    std::int32_t caseNumber = 0;
    std::int32_t frame = 0;
};

struct SurfaceLoadColumns {
    double intensity[3] = {};
    double force[3] = {};
    std::int32_t caseNumber = 0;
    std::int32_t frame = 0;
};

struct SurfaceLoad {
    Polygon outline;
    const SurfaceLoadColumns* columns = &kNoColumns<SurfaceLoadColumns>;
    std::uint32_t identifier = 0;
};

// A self-weight or thermal load: it acts on a group, not at a place.
struct GroupLoad {
    double values[3] = {};  // dX dY dZ of self-weight; DeltaT Gy Gz of a thermal load
    std::uint32_t identifier = 0;
    std::int32_t caseNumber = 0;
    std::int32_t elementKind = 0;
    std::int32_t group = 0;  // the group's rank from 1, or the number read when there is none
};

struct SeismicCase {
    const double* periods = nullptr;  // pointCount each, null when there are none
    const double* accelerations = nullptr;
    std::int32_t pointCount = 0;
    std::int32_t caseNumber = 0;
    std::int32_t direction = 0;
    std::int32_t signChoice = 0;
    std::int32_t mode = 0;
    std::int32_t site = 0;
    std::int32_t workClass = 0;
    std::int32_t soilKind = 0;
    std::int32_t zone = 0;
    bool computesReduction = false;
    bool risk = false;
    bool limitsDampings = false;
    double displacementReduction = 0;
    double forceReduction = 0;
    double ductility = 0;
    double soilLayer = 0;
    double topography = 0;
};

struct Combination {
    const std::int32_t* cases = nullptr;  // termCount each, ascending case numbers
    const double* factors = nullptr;
    std::int32_t termCount = 0;
    std::int32_t caseNumber = 0;
};

// A parameter of an envelope for each of the letters N, A, F and S.
struct EnvelopeLetters {
    std::int32_t n = 0, a = 0, f = 0, s = 0;
};

struct Envelope {
    List<std::int32_t> cases;
    std::int32_t caseNumber = 0;
    std::int32_t quantity = 0;
    EnvelopeLetters envelopes;
    EnvelopeLetters values;
    bool keepsCase = false;
};

struct Modes {
    List<double> dampings;     // its count is the number of modes
    bool hasDampings = false;  // a modal line has made a damping array, perhaps an empty one
    double percent[3] = {100.0, 100.0, 100.0};
    std::int32_t massChoice = 0;
    std::int32_t cases[8] = {};
    double factors[8] = {};
    bool computesDampings = false;
    bool residualMode = false;
    std::int32_t method = 0;
};

// A warning about a load case, to be shown with the prompt of that number.
struct ImportMessage {
    unsigned prompt = 0;
    std::int32_t caseNumber = 0;
};

}  // namespace tamur
