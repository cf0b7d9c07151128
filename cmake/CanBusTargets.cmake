# What every target of the project has in common.

# Warnings for one target; Qt's own headers are system headers and stay silent.
function(canbus_target_options target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wshadow -Wnon-virtual-dtor)
  # Q_SIGNALS, Q_SLOTS and Q_EMIT, everywhere: a maker's headers may use the short words for something else.
  target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS)
  if(CANBUS_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()

# Plug-in and framework, which run on a Qt 4 target as well. They show what they are asked to, and nothing else.
function(canbus_target_defaults target)
  canbus_target_options(${target})
  set_target_properties(${target} PROPERTIES CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON)
  canbus_use_precompiled(${target} target)
endfunction()

# Programs and tests of the desk may use what C++17 offers; they never run on a Qt 4 target. Those that are CORE do
# without a screen: they link with nothing of Qt but its core.
function(canbus_desk_defaults target)
  canbus_target_options(${target})
  target_compile_features(${target} PRIVATE cxx_std_17)
  if("CORE" IN_LIST ARGN)
    canbus_use_precompiled(${target} core)
  else()
    canbus_use_precompiled(${target} desk)
  endif()
endfunction()
