# The layouts of the dialogs about procedures; procedures/dialogs/ProcedureDocuments.h declares them.
set(procedureLayouts ${CMAKE_CURRENT_LIST_DIR})
foreach(screen chooseProcedure approach holding intercept generalProcedure)
  foreach(shape Landscape Portrait)
    skyvane_embed(skyvane_upper ${screen}${shape}Layout ${procedureLayouts}/${screen}${shape}.ini)
  endforeach()
endforeach()
