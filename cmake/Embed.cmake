# skyvane_embed(<target> <symbol> <file>): compiles a file into the target as
#   extern "C" const char <symbol>[];           its bytes, followed by a NUL
#   extern "C" const unsigned <symbol>_size;    their number, the NUL not counted
function(skyvane_embed target symbol file)
  get_filename_component(path ${file} ABSOLUTE)
  set(unit ${CMAKE_CURRENT_BINARY_DIR}/embedded/${symbol}.S)
  file(CONFIGURE OUTPUT ${unit} @ONLY CONTENT [[
    .section .rodata
    .global @symbol@
    .global @symbol@_size
    .balign 16
@symbol@:
    .incbin "@path@"
1:  .byte 0
    .balign 4
@symbol@_size:
    .int 1b - @symbol@
    .section .note.GNU-stack,"",%progbits
]])
  set_source_files_properties(${unit} PROPERTIES OBJECT_DEPENDS ${path})
  target_sources(${target} PRIVATE ${unit})
endfunction()
