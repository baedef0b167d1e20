# What every target of this project is compiled with. Applied per target, so that a build that
# takes the project in with add_subdirectory keeps its own flags.

set(KERNIX_WARNINGS -Wall -Wextra -Wpedantic -Wshadow -Woverloaded-virtual -Wnon-virtual-dtor
	-Wcast-qual -Wundef -Wno-multichar)
# What a later toolkit deprecates still works there: a warning, not the end of a build.
if(KERNIX_WERROR)
	list(APPEND KERNIX_WARNINGS -Werror -Wno-error=deprecated-declarations)
endif()

find_program(CCACHE_PROGRAM ccache)

function(kernix_target target)
	target_compile_features(${target} PUBLIC cxx_std_20)
	set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
	target_compile_options(${target} PRIVATE ${KERNIX_WARNINGS})
	if(KERNIX_SANITIZE)
		string(REPLACE ";" "," kinds "${KERNIX_SANITIZE}")
		target_compile_options(${target} PUBLIC -fsanitize=${kinds} -fno-omit-frame-pointer
			-fno-sanitize-recover=all)
		target_link_options(${target} PUBLIC -fsanitize=${kinds})
	endif()
	if(CCACHE_PROGRAM)
		set_target_properties(${target} PROPERTIES CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
	endif()
endfunction()
