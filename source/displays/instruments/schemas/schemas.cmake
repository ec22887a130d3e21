# The options of the instruments, as schemas of settings editors; displays/instruments/OptionSchemas.h declares them.
set(options ${CMAKE_CURRENT_LIST_DIR})
foreach(instrument oneSegmentPanel warningLamp turnRateIndicator slipIndicator)
  skyvane_embed(skyvane_upper ${instrument}Options ${options}/${instrument}.txt)
endforeach()
