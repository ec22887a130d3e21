# The two floors of the house.
#
# Folders named here compute, read or write. They include no engine header (core/geometry/EngineMath.h brings the
# vector, rectangle and dimension types), open no window and reach no manager; they form the library skyvane_lower.
# Every other folder below source/ belongs to skyvane_upper, which may include the engine, and so do those of the second
# list, which lie in one of the first.
set(SKYVANE_LOWER_FLOOR
    core/bytes core/files core/geometry core/ini core/log core/messages core/text core/threads core/time
    sensors
    attitude/math
    chart/geodesy chart/names chart/elements chart/areas chart/store
    procedures/course procedures/framework procedures/plan procedures/direct procedures/holding procedures/intercept
    procedures/approach procedures/highway procedures/preview
    terrain/files terrain/tree terrain/mesh terrain/jobs terrain/paging
    displays/checklist displays/gauges displays/glide displays/informationmath displays/labels displays/layout
    displays/mapmath displays/shapes displays/visionmath
    procedures/aircraft/profiles
    gui/glyphs gui/hypertext/elements gui/hypertext/markup gui/hypertext/pages gui/keys gui/layout gui/layoutmath
    gui/saves)
set(SKYVANE_UPPER_WITHIN sensors/setup)

# Collects the files of a tree into <lower_out> and <upper_out>, by folder.
function(skyvane_split_floors root pattern lower_out upper_out)
  file(GLOB_RECURSE all RELATIVE ${root} CONFIGURE_DEPENDS ${root}/${pattern})
  set(lower "")
  set(upper "")
  foreach(file IN LISTS all)
    set(floor upper)
    foreach(folder IN LISTS SKYVANE_LOWER_FLOOR)
      string(FIND ${file} "${folder}/" position)
      if(position EQUAL 0)
        set(floor lower)
      endif()
    endforeach()
    foreach(folder IN LISTS SKYVANE_UPPER_WITHIN)
      string(FIND ${file} "${folder}/" position)
      if(position EQUAL 0)
        set(floor upper)
      endif()
    endforeach()
    list(APPEND ${floor} ${root}/${file})
  endforeach()
  set(${lower_out} ${lower} PARENT_SCOPE)
  set(${upper_out} ${upper} PARENT_SCOPE)
endfunction()
