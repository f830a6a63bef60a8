# Scenarios as tests: each .scenario file below a folder is played on the controls, and on the widgets too where the
# desktop is built. They are found by pattern, since a scenario that nobody listed would never be played; files of
# other names (.steps) are there to be played by scenarios.

# ovindra_scenarios(FOLDER)
function(ovindra_scenarios folder)
  file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE ${folder} ${folder}/*.scenario)
  set(pictures ${PROJECT_BINARY_DIR}/pictures)
  file(MAKE_DIRECTORY ${pictures})
  foreach(file ${files})
    string(REGEX REPLACE "\\.scenario$" "" title ${file})
    add_test(NAME scenario/${title} COMMAND ovindra-drive ${file} WORKING_DIRECTORY ${folder})
    if(TARGET ovindra_window_player)
      add_test(NAME scenario/${title}/window
        COMMAND ovindra-drive --window --pictures ${pictures} ${file} WORKING_DIRECTORY ${folder})
      set_tests_properties(scenario/${title}/window PROPERTIES ENVIRONMENT QT_QPA_PLATFORM=offscreen)
    endif()
  endforeach()
endfunction()
