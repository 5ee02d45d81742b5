# Installs the built library into a private prefix, then configures, builds and runs the
# consumer project against it, first through the CMake package and then through pkg-config.
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)

function(run_step)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "consumer check failed at: ${ARGN}")
  endif()
endfunction()

run_step(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
run_step(${CMAKE_COMMAND} -S ${CONSUMER_DIR} -B ${WORK_DIR}/build -G Ninja
         -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_TYPE=Release)
run_step(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
run_step(${WORK_DIR}/build/consumer)

find_program(PKG_CONFIG pkg-config REQUIRED)
find_program(CXX NAMES c++ g++ REQUIRED)
file(GLOB pc_dirs ${prefix}/lib*/pkgconfig ${prefix}/lib/*/pkgconfig)
set(ENV{PKG_CONFIG_PATH} "${pc_dirs}")
execute_process(COMMAND ${PKG_CONFIG} --cflags --libs varno-calc-common
                OUTPUT_VARIABLE pc_flags OUTPUT_STRIP_TRAILING_WHITESPACE RESULT_VARIABLE status)
if(NOT status EQUAL 0)
  message(FATAL_ERROR "pkg-config does not know varno-calc-common")
endif()
separate_arguments(pc_flags UNIX_COMMAND "${pc_flags}")
execute_process(COMMAND ${PKG_CONFIG} --variable=libdir varno-calc-common
                OUTPUT_VARIABLE libdir OUTPUT_STRIP_TRAILING_WHITESPACE)
run_step(${CXX} ${CONSUMER_DIR}/main.cpp ${pc_flags} -Wl,-rpath,${libdir}
         -o ${WORK_DIR}/consumer-pkg-config)
run_step(${WORK_DIR}/consumer-pkg-config)

# Internal routines must stay out of the shared library's dynamic symbol table.
find_program(NM nm REQUIRED)
file(GLOB installed_library ${prefix}/lib*/libvarno-calc-common.so ${prefix}/lib/*/libvarno-calc-common.so)
execute_process(COMMAND ${NM} -D -C --defined-only ${installed_library} OUTPUT_VARIABLE symbols)
if(symbols MATCHES "VARNO::detail")
  message(FATAL_ERROR "internal VARNO::detail symbols are exported")
endif()
if(NOT symbols MATCHES "spectrum_t::log_add")
  message(FATAL_ERROR "the public interface is not exported")
endif()
