#include "chartmaker/ground/GroundSource.h"

#include "chartmaker/ground/GroundElements.h"
#include "chartmaker/ground/PbfBlocks.h"
#include "core/IProgressSink.h"
#include "core/files/Paths.h"

#include <cpl_conv.h>
#include <cpl_vsi.h>
#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <cmath>
#include <cstring>
#include <memory>

namespace skyvane {
namespace {

/// Of OpenStreetMap's tags, those that rules ask for become attributes; the file lives in memory while it is used.
class OsmConfiguration {
public:
    OsmConfiguration() {
        text_ = "closed_ways_are_polygons=aeroway,boundary,building,landuse,natural,place,waterway=riverbank\n"
                "attribute_name_laundering=no\n";
        for (const char* layer : {"points", "lines", "multipolygons", "multilinestrings", "other_relations"}) {
            text_ += std::string("[") + layer + "]\nosm_id=yes\nother_tags=no\nattributes=";
            std::string keys;
            for (const std::string& key : GroundRules::standard().getKeys())
                keys += (keys.empty() ? "" : ",") + key;
            text_ += keys + "\n";
        }
        VSIFCloseL(VSIFileFromMemBuffer(path, reinterpret_cast<GByte*>(&text_[0]), text_.size(), FALSE));
    }
    ~OsmConfiguration() { VSIUnlink(path); }
    OsmConfiguration(const OsmConfiguration&) = delete;
    OsmConfiguration& operator=(const OsmConfiguration&) = delete;

    static constexpr const char* path = "/vsimem/skyvane_osmconf.ini";

private:
    std::string text_;
};

bool endsWith(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

/// No network and no virtual formats: a file names nothing but itself.
GDALDatasetUniquePtr openFile(const std::string& path) {
    static const char* const drivers[] = {"OSM", "GeoJSON", "ESRI Shapefile", "GPKG", nullptr};
    const std::string option = std::string("CONFIG_FILE=") + OsmConfiguration::path;
    const char* const options[] = {option.c_str(), nullptr};
    const std::string name = endsWith(path, ".gz") ? "/vsigzip/" + path : path;
    return GDALDatasetUniquePtr(
        GDALDataset::Open(name.c_str(), GDAL_OF_VECTOR | GDAL_OF_READONLY, drivers, options, nullptr));
}

/// The way from a layer's coordinates to longitude and latitude. False when there is none.
bool makeTransformation(OGRLayer& layer, std::unique_ptr<OGRCoordinateTransformation>& transformation) {
    transformation.reset();
    OGRSpatialReference* from = layer.GetSpatialRef();
    OGRSpatialReference to;
    to.SetWellKnownGeogCS("WGS84");
    to.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    const char* const options[] = {"IGNORE_DATA_AXIS_TO_SRS_AXIS_MAPPING=YES", nullptr};
    if (!from || from->IsSame(&to, options))
        return true;
    transformation.reset(OGRCreateCoordinateTransformation(from, &to));
    return transformation != nullptr;
}

class GroundReader {
public:
    GroundReader(const std::string& path, const SourceContext& context)
        : path_(path), context_(context), elements_(path, context) {}

    bool read(GDALDataset& source) {
        OGRLayer* layer = nullptr;
        double share = 0.0;
        for (;;) {
            const OGRFeatureUniquePtr feature(source.GetNextFeature(&layer, &share, nullptr, nullptr));
            if (!feature)
                break;
            if (++features_ % 1024 == 0)
                context_.progress.setProgress(share);
            addFeature(*feature, *layer);
            CPLErrorReset(); // what is left at the end is about reading
        }
        if (CPLGetLastErrorType() == CE_Failure) {
            context_.sink.refuse({path_, 0}, std::string("the file can't be read to its end: ") + CPLGetLastErrorMsg());
            return false;
        }
        elements_.finish();
        if (elements_.getCount() == 0)
            context_.sink.warn({path_, 0}, "nothing in it is of use for charts");
        return true;
    }

private:
    void addFeature(OGRFeature& feature, OGRLayer& layer) {
        OGRGeometry* geometry = feature.GetGeometryRef();
        if (!geometry || geometry->IsEmpty())
            return;
        feature_ = &feature;
        setLayer(layer);
        const std::unique_ptr<OGRGeometry> flat(isPlaceKnown_ ? geometry->getLinearGeometry() : nullptr);
        if (flat)
            addParts(*flat);
    }

    void setLayer(OGRLayer& layer) {
        if (layer_ == &layer)
            return;
        layer_ = &layer;
        isPlaceKnown_ = makeTransformation(layer, transformation_);
        if (!isPlaceKnown_)
            context_.sink.refuse({path_, 0},
                                 std::string("layer ") + layer.GetName() + ": its coordinate system is unknown");
    }

    void addParts(const OGRGeometry& geometry) {
        const OGRwkbGeometryType type = wkbFlatten(geometry.getGeometryType());
        if (type == wkbLineString)
            addLine(*geometry.toLineString());
        else if (type == wkbPolygon)
            addPolygon(*geometry.toPolygon());
        else if (OGR_GT_IsSubClassOf(type, wkbGeometryCollection))
            for (const OGRGeometry* part : *geometry.toGeometryCollection())
                addParts(*part);
    }

    void addLine(const OGRLineString& line) {
        const bool isClosed = line.get_IsClosed() && line.getNumPoints() > 3;
        const auto kind = classify(isClosed ? GroundShape::ClosedLine : GroundShape::OpenLine);
        GroundLine points;
        if (!kind || !toPoints(line, points))
            return;
        if (!kind->isArea)
            return elements_.addLine(*kind, nameOf(*kind), std::move(points));
        points.pop_back();
        elements_.addArea(*kind, nameOf(*kind), {std::move(points), {}});
    }

    void addPolygon(const OGRPolygon& polygon) {
        const auto kind = classify(GroundShape::Polygon);
        if (!kind || !polygon.getExteriorRing())
            return;
        GroundPolygon shape;
        for (int i = -1; i < polygon.getNumInteriorRings(); ++i) {
            GroundLine ring;
            if (!toPoints(i < 0 ? *polygon.getExteriorRing() : *polygon.getInteriorRing(i), ring))
                return;
            if (!kind->isArea) {
                elements_.addEdge(*kind, std::move(ring));
                continue;
            }
            ring.pop_back();
            (i < 0 ? shape.outline : shape.holes.emplace_back()) = std::move(ring);
        }
        if (kind->isArea)
            elements_.addArea(*kind, nameOf(*kind), shape);
    }

    std::optional<GroundKind> classify(GroundShape shape) const {
        return GroundRules::standard().classify([this](const std::string& key) { return attribute(key); }, shape);
    }

    std::string attribute(const std::string& key) const {
        const int field = feature_->GetFieldIndex(key.c_str()); // whatever the case
        return field >= 0 && feature_->IsFieldSetAndNotNull(field) ? feature_->GetFieldAsString(field) : "";
    }

    /// Roads go by their numbers where they have one.
    std::string nameOf(const GroundKind& kind) const {
        constexpr uint8_t highway = 9;
        std::string name = kind.feature == highway ? attribute("ref") : "";
        if (name.empty())
            name = attribute("name");
        constexpr size_t longest = 120;
        return name.size() > longest ? "" : name;
    }

    /// False, and a refusal, when there is a point that is nowhere on the earth. A line that lies on one place is
    /// passed over without a word.
    bool toPoints(const OGRLineString& line, GroundLine& points) {
        for (int i = 0; i < line.getNumPoints(); ++i) {
            double x = line.getX(i), y = line.getY(i);
            const bool isKnown = !transformation_ || transformation_->Transform(1, &x, &y);
            if (!isKnown || !(std::fabs(x) <= 180.0 + 1e-9) || !(std::fabs(y) <= 90.0)) {
                refuse("it has a place that is nowhere on the earth");
                return false;
            }
            if (points.empty() || points.back().longitude != x || points.back().latitude != y)
                points.emplace_back(x, y);
        }
        return points.size() > 1;
    }

    void refuse(const std::string& reason) {
        const std::string id = std::to_string(feature_->GetFID());
        context_.sink.refuse({path_, 0}, std::string(layer_->GetName()) + " feature " + id + ": " + reason);
    }

    std::string path_;
    const SourceContext& context_;
    GroundElements elements_;
    const OGRFeature* feature_ = nullptr;
    OGRLayer* layer_ = nullptr;
    std::unique_ptr<OGRCoordinateTransformation> transformation_; ///< Null when none is needed.
    bool isPlaceKnown_ = true;
    long features_ = 0;
};

/// GDAL's messages are asked for, not printed. Those of OpenStreetMap's relations that lack parts are counted: it drops
/// them with no more than that.
class QuietErrors {
public:
    QuietErrors() {
        CPLSetThreadLocalConfigOption("CPL_DEBUG", "OSM");
        CPLPushErrorHandlerEx(&QuietErrors::take, this);
        CPLErrorReset();
    }
    ~QuietErrors() {
        CPLPopErrorHandler();
        CPLSetThreadLocalConfigOption("CPL_DEBUG", nullptr);
    }
    QuietErrors(const QuietErrors&) = delete;
    QuietErrors& operator=(const QuietErrors&) = delete;

    long getIncomplete() const { return incomplete_; }

private:
    static void CPL_STDCALL take(CPLErr kind, CPLErrorNum, const char* text) {
        if (kind == CE_Debug && std::strstr(text, "has missing ways"))
            ++static_cast<QuietErrors*>(CPLGetErrorHandlerUserData())->incomplete_;
    }

    long incomplete_ = 0;
};

} // namespace

bool readGround(const std::string& path, const SourceContext& context) {
    if (endsWith(path, ".pbf") && fileExist(path) && !isWholePbf(path)) {
        context.sink.refuse({path, 0}, "is damaged: it ends inside of a block, or isn't an OpenStreetMap extract");
        return false;
    }
    GDALAllRegister();
    const QuietErrors quiet;
    const OsmConfiguration configuration;
    const GDALDatasetUniquePtr source = openFile(path);
    if (!source) {
        const std::string why = CPLGetLastErrorMsg();
        context.sink.refuse({path, 0}, "can't be read as ground geometry" + (why.empty() ? why : ": " + why));
        return false;
    }
    const bool isRead = GroundReader(path, context).read(*source);
    if (const long incomplete = quiet.getIncomplete())
        context.sink.warn({path, 0}, std::to_string(incomplete) +
                                         " relations reach out of the file and can't be drawn: "
                                         "at its edge, borders and lakes may be missing");
    return isRead;
}

} // namespace skyvane
