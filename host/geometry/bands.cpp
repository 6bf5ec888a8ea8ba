#include "host/geometry/bands.h"

#include <algorithm>
#include <cmath>

namespace tamur::host {
namespace {

constexpr std::size_t kMostTrianglesForAnEdge = 20;
// Of the height of all: bands thinner than that are rounding.
constexpr double kThinnest = 1e-12;

struct Edge {
    PlanePoint low, high;
    std::size_t ring;

    [[nodiscard]] double At(double v) const
    {
        return low.u + (high.u - low.u) * ((v - low.v) / (high.v - low.v));
    }
};

class Cutter {
 public:
    explicit Cutter(const std::vector<std::vector<PlanePoint>>& rings) : isIn_(rings.size())
    {
        for (std::size_t ring = 0; ring < rings.size(); ++ring) {
            const auto& points = rings[ring];
            for (std::size_t i = 0; i < points.size(); ++i) {
                const PlanePoint a = points[i], b = points[i + 1 < points.size() ? i + 1 : 0];
                heights_.push_back(a.v);
                if (a.v < b.v) edges_.push_back({a, b, ring});
                if (a.v > b.v) edges_.push_back({b, a, ring});
            }
        }
    }

    std::optional<Bands> Cut()
    {
        if (!AddCrossings()) return std::nullopt;
        std::sort(heights_.begin(), heights_.end());
        const double thinnest = kThinnest * (heights_.back() - heights_.front());
        double low = heights_.front();
        for (const double high : heights_) {
            if (high - low <= thinnest) continue;
            CutBand(low, high);
            low = high;
            if (bands_.corners.size() > 3 * MostTriangles()) return std::nullopt;
        }
        return std::move(bands_);
    }

 private:
    [[nodiscard]] std::size_t MostTriangles() const
    {
        return kMostTrianglesForAnEdge * edges_.size();
    }

    // The heights at which edges cross; false when these are too many.
    bool AddCrossings()
    {
        for (std::size_t i = 0; i < edges_.size(); ++i) {
            for (std::size_t k = 0; k < i; ++k) {
                const Edge &a = edges_[i], &b = edges_[k];
                const double low = std::max(a.low.v, b.low.v);
                const double high = std::min(a.high.v, b.high.v);
                if (!(low < high)) continue;
                const double before = a.At(low) - b.At(low), after = a.At(high) - b.At(high);
                if (!(before * after < 0)) continue;
                heights_.push_back(low + (high - low) * (before / (before - after)));
                if (heights_.size() > MostTriangles()) return false;
            }
        }
        return true;
    }

    void CutBand(double low, double high)
    {
        const double middle = low + (high - low) / 2;
        across_.clear();
        for (const Edge& edge : edges_) {
            if (edge.low.v < middle && edge.high.v > middle) {
                across_.emplace_back(edge.At(middle), &edge);
            }
        }
        std::sort(across_.begin(), across_.end());
        std::fill(isIn_.begin(), isIn_.end(), false);
        const Edge* left = nullptr;
        std::size_t openings = 0;
        for (const auto& [u, edge] : across_) {
            isIn_[edge->ring] = !isIn_[edge->ring];
            if (edge->ring > 0) openings += isIn_[edge->ring] ? std::size_t{1} : ~std::size_t{0};
            const bool isSolid = isIn_[0] && openings == 0;
            if (isSolid == (left != nullptr)) continue;
            if (!isSolid) Add(*left, *edge, low, high);
            left = isSolid ? edge : nullptr;
        }
    }

    void Add(const Edge& left, const Edge& right, double low, double high)
    {
        const auto first = static_cast<std::uint32_t>(bands_.points.size());
        bands_.points.insert(bands_.points.end(), {{left.At(low), low},
                                                   {right.At(low), low},
                                                   {right.At(high), high},
                                                   {left.At(high), high}});
        bands_.corners.insert(bands_.corners.end(),
                              {first, first + 1, first + 2, first, first + 2, first + 3});
    }

    std::vector<Edge> edges_;
    std::vector<double> heights_;
    std::vector<std::pair<double, const Edge*>> across_;  // where, at the middle of the band
    std::vector<bool> isIn_;                              // each ring
    Bands bands_;
};

}  // namespace

std::optional<Bands> BandsOf(const std::vector<std::vector<PlanePoint>>& rings)
{
    return Cutter(rings).Cut();
}

}  // namespace tamur::host
