#pragma once

// What each shared library exports. Everything else is hidden (-fvisibility=hidden).
// While a library is being built its own VEXEL..._BUILDING is defined; on this platform both cases read alike.
#define VEXEL_EXPORT_DEFAULT __attribute__((visibility("default")))

#define VEXEL_API VEXEL_EXPORT_DEFAULT          // libvexel: the framework and the platform contract
#define VEXEL_MEMORY_API VEXEL_EXPORT_DEFAULT   // libvexel_memory: the in-memory backend
#define VEXEL_TESTING_API VEXEL_EXPORT_DEFAULT  // libvexel_testing: the test kit
#define VEXEL_QT_API VEXEL_EXPORT_DEFAULT       // libvexel_qt: the Qt 6 backend
