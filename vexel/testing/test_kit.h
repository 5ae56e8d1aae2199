#pragma once

// The whole test kit, for programs that use GoogleTest.
//
//     #include "vexel/testing/test_kit.h"
//
//     using namespace vexel;
//     using namespace vexel::test;

#include "vexel/platform/memory/memory_system.h"
#include "vexel/testing/census.h"
#include "vexel/testing/describe.h"
#include "vexel/testing/expect_report.h"
#include "vexel/testing/google_test.h"
#include "vexel/testing/paint_log.h"
#include "vexel/testing/pixels.h"
#include "vexel/testing/random.h"
#include "vexel/testing/signal_log.h"
#include "vexel/testing/test_host.h"
