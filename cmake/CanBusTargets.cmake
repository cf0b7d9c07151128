# What every target of the project has in common.

# Warnings for one target; Qt's own headers are system headers and stay silent.
function(canbus_target_defaults target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wshadow -Wnon-virtual-dtor)
  # Q_SIGNALS, Q_SLOTS and Q_EMIT, everywhere: a maker's headers may use the short words for something else.
  target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS)
  if(CANBUS_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()

# Programs and tests of the desk may use what C++17 offers; they never run on a Qt 4 target.
function(canbus_desk_defaults target)
  canbus_target_defaults(${target})
  target_compile_features(${target} PRIVATE cxx_std_17)
  canbus_use_precompiled(${target})
endfunction()
