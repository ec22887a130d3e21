skyvane_embed(skyvane_upper skyvane_sdff_vertex_shader ${CMAKE_CURRENT_LIST_DIR}/sdff.vert)
skyvane_embed(skyvane_upper skyvane_sdff_fragment_shader ${CMAKE_CURRENT_LIST_DIR}/sdff.frag)
