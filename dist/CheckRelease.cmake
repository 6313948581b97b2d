# Fails when the built manual page or software-centre data name another release than the top
# entry of the built changelog. Run with -DCHANGELOG=, -DMETAINFO= and -DMANPAGE= set.
include(${CMAKE_CURRENT_LIST_DIR}/Release.cmake)
veyrant_read_release(${CHANGELOG} RELEASE)
string(REPLACE "." "\\." version ${RELEASE_VERSION})

file(STRINGS ${METAINFO} releases REGEX "<release ")
list(GET releases 0 release)
if(NOT release MATCHES "version=\"${version}\" date=\"${RELEASE_DATE}\"")
    message(FATAL_ERROR "${METAINFO}: \"${release}\", but the changelog has "
                        "${RELEASE_VERSION} of ${RELEASE_DATE}")
endif()

file(STRINGS ${MANPAGE} heading REGEX "^\\.TH ")
if(NOT heading MATCHES "\"${RELEASE_DATE}\" \"Veyrant Sagrel ${version}\"")
    message(FATAL_ERROR "${MANPAGE}: \"${heading}\", but the changelog has "
                        "${RELEASE_VERSION} of ${RELEASE_DATE}")
endif()
message(STATUS "Release ${RELEASE_VERSION} of ${RELEASE_DATE} everywhere")
