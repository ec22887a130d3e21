# What the class codes of airspaces mean; AirspaceDescription.cpp tells the form.
skyvane_embed(skyvane_lower skyvane_airspace_classes ${CMAKE_CURRENT_LIST_DIR}/airspaceClasses.txt)
