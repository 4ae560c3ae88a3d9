# Windows looks for libraries in the folder of the program: installs the libraries of others there.
# The target `tiv_zip` packs an installation.
foreach(module Core Gui Widgets)
    install(FILES $<TARGET_FILE:Qt${TIV_QT}::${module}> TYPE BIN)
endforeach()
install(FILES $<TARGET_FILE:Qt${TIV_QT}::QWindowsIntegrationPlugin> DESTINATION ${CMAKE_INSTALL_BINDIR}/platforms)
install(FILES $<TARGET_FILE:Qt${TIV_QT}::QWindowsVistaStylePlugin> DESTINATION ${CMAKE_INSTALL_BINDIR}/styles)

if(MINGW)
    set(german /usr/share/qt5/translations/qtbase_de.qm)  # the texts of Qt itself
    file(COPY ${german} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
    install(FILES ${german} TYPE BIN)
    set(dependencies ${CMAKE_FIND_ROOT_PATH})
    foreach(library libgcc_s_seh-1 libstdc++-6 libwinpthread-1)
        install(FILES ${dependencies}/bin/${library}.dll TYPE BIN)
    endforeach()
    install(DIRECTORY ${dependencies}/licenses DESTINATION ${CMAKE_INSTALL_DOCDIR})

    set(package ${PROJECT_NAME}-${PROJECT_VERSION}-windows-mingw64)
    add_custom_target(tiv_zip
        COMMAND ${CMAKE_COMMAND} -E rm -rf ${package} ${package}.zip
        COMMAND ${CMAKE_COMMAND} --install . --strip --prefix ${package}
        COMMAND ${CMAKE_COMMAND} -E tar cf ${package}.zip --format=zip ${package}
        COMMAND ${CMAKE_COMMAND} -E echo "Packed ${PROJECT_BINARY_DIR}/${package}.zip"
        WORKING_DIRECTORY ${PROJECT_BINARY_DIR})
endif()
