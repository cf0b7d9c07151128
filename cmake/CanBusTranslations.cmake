# The languages that drivers of these cars speak, after English, in which the texts are written: files BASE_LANGUAGE.ts.
set(CANBUS_LANGUAGES de zh_CN fr es ru)

# The files of all languages for each BASE, in OUT.
function(canbus_translation_sources out)
  set(sources "")
  foreach(base IN LISTS ARGN)
    foreach(language IN LISTS CANBUS_LANGUAGES)
      list(APPEND sources ${base}_${language}.ts)
    endforeach()
  endforeach()
  set(${out} ${sources} PARENT_SCOPE)
endfunction()

# Compiles each NAME_LANGUAGE.ts to FOLDER/NAME_LANGUAGE.qm as part of building TARGET, and lists the results in OUT.
# Without lrelease the target speaks English only.
function(canbus_compile_translations target folder out)
  find_program(CANBUS_LRELEASE NAMES lrelease lrelease-qt${CANBUS_QT_VERSION}
               HINTS /usr/lib/qt${CANBUS_QT_VERSION}/bin)
  set(all_compiled "")
  if(CANBUS_LRELEASE)
    file(MAKE_DIRECTORY ${folder})
    foreach(source IN LISTS ARGN)
      get_filename_component(stem ${source} NAME_WE)
      set(compiled ${folder}/${stem}.qm)
      add_custom_command(OUTPUT ${compiled}
        COMMAND ${CANBUS_LRELEASE} -silent ${CMAKE_CURRENT_SOURCE_DIR}/${source} -qm ${compiled}
        DEPENDS ${source} VERBATIM)
      list(APPEND all_compiled ${compiled})
    endforeach()
  else()
    message(STATUS "lrelease is missing: ${target} speaks English only")
  endif()
  add_custom_target(${target}_translations ALL DEPENDS ${all_compiled})
  add_dependencies(${target} ${target}_translations)
  set(${out} ${all_compiled} PARENT_SCOPE)
endfunction()

# Puts translations into a library or program: each file BASE_LANGUAGE.ts becomes :/i18n/BASE_LANGUAGE.qm, the form
# in which OrbHost looks for a language. The resource is called NAME (for Q_INIT_RESOURCE).
function(canbus_add_translations target name)
  canbus_translation_sources(sources ${ARGN})
  canbus_compile_translations(${target} ${CMAKE_CURRENT_BINARY_DIR} all_compiled ${sources})
  canbus_pseudo_translations(${target} ${ARGN})
  set(qrc ${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc)
  set(content "<RCC>\n    <qresource prefix=\"/i18n\">\n")
  foreach(compiled IN LISTS all_compiled)
    get_filename_component(file_name ${compiled} NAME)
    string(APPEND content "        <file>${file_name}</file>\n")
  endforeach()
  string(APPEND content "    </qresource>\n</RCC>\n")
  set(before "")
  if(EXISTS ${qrc})
    file(READ ${qrc} before)
  endif()
  if(NOT before STREQUAL content)
    file(WRITE ${qrc} "${content}")
  endif()
  target_sources(${target} PRIVATE ${qrc})
  set_property(TARGET ${target} APPEND PROPERTY AUTOGEN_TARGET_DEPENDS ${target}_translations)
endfunction()

# Folder of the compiled translations that a host loads from outside (plug-in and framework). Installed they lie in
# share/orb/translations.
set(CANBUS_TRANSLATION_DIR ${CMAKE_BINARY_DIR}/translations)
set(CANBUS_TRANSLATION_INSTALL_DIR ${CMAKE_INSTALL_DATADIR}/orb/translations)

# Compiles each BASE_LANGUAGE.ts to a file of that folder whenever the target is built.
function(canbus_translation_files target)
  canbus_translation_sources(sources ${ARGN})
  foreach(base IN LISTS ARGN)
    if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${base}_en.ts) # puts misspelt texts right
      list(APPEND sources ${base}_en.ts)
    endif()
  endforeach()
  canbus_compile_translations(${target} ${CANBUS_TRANSLATION_DIR} all_compiled ${sources})
  canbus_pseudo_translations(${target} ${ARGN})
  install(FILES ${all_compiled} DESTINATION ${CANBUS_TRANSLATION_INSTALL_DIR})
endfunction()

# The pseudo language shows tests what is cut and what nobody translates. It is made of the texts of any language's
# file and never installed.
function(canbus_pseudo_translations target)
  if(NOT CANBUS_TESTS OR NOT CANBUS_LRELEASE)
    return()
  endif()
  find_package(Python3 REQUIRED COMPONENTS Interpreter)
  set(tool ${CMAKE_SOURCE_DIR}/tools/pseudo_translation.py)
  set(all_compiled "")
  foreach(base IN LISTS ARGN)
    get_filename_component(name ${base} NAME)
    set(texts ${CMAKE_CURRENT_SOURCE_DIR}/${base}_de.ts)
    set(written ${CMAKE_CURRENT_BINARY_DIR}/${name}_pseudo.ts)
    set(compiled ${CANBUS_TRANSLATION_DIR}/${name}_pseudo.qm)
    add_custom_command(OUTPUT ${compiled}
      COMMAND ${Python3_EXECUTABLE} ${tool} ${texts} ${written}
      COMMAND ${CANBUS_LRELEASE} -silent ${written} -qm ${compiled}
      DEPENDS ${texts} ${tool} VERBATIM)
    list(APPEND all_compiled ${compiled})
  endforeach()
  add_custom_target(${target}_pseudo ALL DEPENDS ${all_compiled})
  add_dependencies(${target}_translations ${target}_pseudo)
endfunction()
