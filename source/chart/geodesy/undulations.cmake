# The half-degree table of geoid heights; Geoid.cpp tells its form.
skyvane_embed(skyvane_lower undulations ${CMAKE_CURRENT_LIST_DIR}/undulations.bin)
