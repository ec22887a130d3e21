# The media folder that the program reads: drawings rendered to textures, everything else linked as it is.
#
# skyvane_media(<target>) fills ${CMAKE_BINARY_DIR}/media: each media/drawings/<name>.svg becomes <name>.png at the
# size written in the drawing, stored without compression for a quick start, and so are the pages of the fonts; every other entry becomes a link.
find_program(RSVG_CONVERT rsvg-convert REQUIRED)
find_package(PNG REQUIRED)
add_executable(storepng ${CMAKE_SOURCE_DIR}/tools/media/storepng.cpp)
target_link_libraries(storepng PRIVATE PNG::PNG)

function(skyvane_media target)
  set(out ${CMAKE_BINARY_DIR}/media)
  file(MAKE_DIRECTORY ${out})
  file(GLOB drawings CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/media/drawings/*.svg)
  set(textures "")
  foreach(drawing IN LISTS drawings)
    get_filename_component(name ${drawing} NAME_WE)
    add_custom_command(OUTPUT ${out}/${name}.png
                       COMMAND ${RSVG_CONVERT} --format png --output ${out}/${name}.packed ${drawing}
                       COMMAND storepng ${out}/${name}.packed ${out}/${name}.png
                       COMMAND ${CMAKE_COMMAND} -E rm ${out}/${name}.packed
                       DEPENDS ${drawing} storepng VERBATIM)
    list(APPEND textures ${out}/${name}.png)
  endforeach()
  file(GLOB entries RELATIVE ${CMAKE_SOURCE_DIR}/media CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/media/*)
  file(GLOB fonts RELATIVE ${CMAKE_SOURCE_DIR}/media CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/media/sdff/*)
  file(REMOVE ${out}/sdff) # a link once
  file(MAKE_DIRECTORY ${out}/sdff)
  foreach(font IN LISTS fonts)
    if(font MATCHES "png$")
      add_custom_command(OUTPUT ${out}/${font}
                         COMMAND storepng ${CMAKE_SOURCE_DIR}/media/${font} ${out}/${font}
                         DEPENDS ${CMAKE_SOURCE_DIR}/media/${font} storepng VERBATIM)
      list(APPEND textures ${out}/${font})
    else()
      file(CREATE_LINK ${CMAKE_SOURCE_DIR}/media/${font} ${out}/${font} SYMBOLIC)
    endif()
  endforeach()
  foreach(entry IN LISTS entries)
    if(NOT entry STREQUAL drawings AND NOT entry STREQUAL sdff)
      file(CREATE_LINK ${CMAKE_SOURCE_DIR}/media/${entry} ${out}/${entry} SYMBOLIC)
    endif()
  endforeach()
  add_custom_target(${target} ALL DEPENDS ${textures})
endfunction()
