# The engine content: data/ compiled into the two engine files, one unit per stock and one per
# fixed library, all in the build tree. Included from src/ so that the core owns the generated units.
set(VEYRANT_ENGINE_GENERATED_DIR ${PROJECT_BINARY_DIR}/generated/engine)
set(VEYRANT_ENGINE_GENERATED
    ${VEYRANT_ENGINE_GENERATED_DIR}/EngineFiles.cpp
    ${VEYRANT_ENGINE_GENERATED_DIR}/Suggestions.cpp)
foreach(stock 01 02 03 04 05 06 07 08 09 10 11 12 13 14)
    list(APPEND VEYRANT_ENGINE_GENERATED ${VEYRANT_ENGINE_GENERATED_DIR}/Stock${stock}.cpp)
endforeach()
foreach(library Information Knowledge Advanced)
    list(APPEND VEYRANT_ENGINE_GENERATED ${VEYRANT_ENGINE_GENERATED_DIR}/${library}Library.cpp)
endforeach()
file(GLOB_RECURSE VEYRANT_CONTENT_SOURCES CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/data/*.txt)
add_custom_command(
    OUTPUT ${VEYRANT_ENGINE_GENERATED}
           ${VEYRANT_ENGINE_GENERATED_DIR}/qdr41.sys
           ${VEYRANT_ENGINE_GENERATED_DIR}/qdr41.mtx
    COMMAND content-compiler ${PROJECT_SOURCE_DIR}/data ${VEYRANT_ENGINE_GENERATED_DIR}
    DEPENDS content-compiler ${VEYRANT_CONTENT_SOURCES}
    COMMENT "Compiling the engine content from data/"
    VERBATIM)
