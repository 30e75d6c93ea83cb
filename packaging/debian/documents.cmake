# Puts the copyright and the changelog into the folder of every package; the licences that other installations have as
# files are in the former. The same bytes for every architecture, whenever it is packed.
if(DEFINED ENV{SOURCE_DATE_EPOCH})
  string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
else()
  file(TIMESTAMP ${CPACK_ORVANE_SOURCE}/CHANGELOG.md date "%a, %d %b %Y %H:%M:%S +0000" UTC)
endif()
set(version ${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
foreach(component ${CPACK_COMPONENTS_ALL})
  string(TOUPPER ${component} key)
  set(root ${CPACK_TEMPORARY_DIRECTORY}/${component}/usr)
  set(folder ${root}/share/doc/${CPACK_DEBIAN_${key}_PACKAGE_NAME})
  file(REMOVE ${root}/share/doc/orvane/LICENSE ${root}/share/doc/orvane/THIRD_PARTY_NOTICES)
  configure_file(${CPACK_ORVANE_SOURCE}/packaging/debian/copyright ${folder}/copyright COPYONLY)
  file(WRITE ${folder}/changelog.Debian "orvane (${version}) unstable; urgency=medium

  * Version ${CPACK_PACKAGE_VERSION}: CHANGELOG.md says what is new.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
  execute_process(COMMAND gzip -9nf ${folder}/changelog.Debian COMMAND_ERROR_IS_FATAL ANY)
endforeach()
