#include "displays/map/MapImages.h"

namespace skyvane {

MapImages::MapImages(Context* context)
    : plane(loadPanelImage(context, "media/plane.png")), nose(loadPanelImage(context, "media/nose.png")),
      noseSegment(loadPanelImage(context, "media/nose_segment.png")),
      noseSegmentBig(loadPanelImage(context, "media/nose_segment_big.png")),
      cross(loadPanelImage(context, "media/cross.png")), crossGreen(loadPanelImage(context, "media/crossGreen.png")),
      oneDirection(loadPanelImage(context, "media/onedir.png")), course(loadPanelImage(context, "media/course.png")),
      entry(loadPanelImage(context, "media/entry.png")), proceeding(loadPanelImage(context, "media/proceeding.png")),
      traffic(loadPanelImage(context, "media/traffic.png")),
      compassGround(loadPanelImage(context, "media/compass_bg.png")),
      compassNeedle(loadPanelImage(context, "media/compass_needle.png")),
      compassNeedleNorth(loadPanelImage(context, "media/compass_needle2.png")),
      zoomBar(loadPanelImage(context, "media/zoombar.png")), label(loadPanelImage(context, "media/label.png")),
      terrainGradient(loadPanelImage(context, "media/terrainGradient.png")),
      white(loadPanelImage(context, "media/white.png")) {}

} // namespace skyvane
