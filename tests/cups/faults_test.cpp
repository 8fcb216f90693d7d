#include "tests/cups/fault_table.h"

#include <gtest/gtest.h>

using test::FaultKind;

// A few of each kind; all of them are in the long tests.

TEST(ServerFaults, CutAnswersMakeOneJob)
{
    test::expectOneJobEach(FaultKind::CutAnswers, 10);
}

TEST(ServerFaults, CutRequestsMakeOneJob)
{
    test::expectOneJobEach(FaultKind::CutRequests, 10);
}

TEST(ServerFaults, SilenceMakesOneJob)
{
    test::expectOneJobEach(FaultKind::Silence, 4);
}

TEST(ServerFaults, DeafnessMakesOneJob)
{
    test::expectOneJobEach(FaultKind::Deafness, 4);
}

TEST(ServerFaults, AByteAtATimeMakesOneJob)
{
    test::expectOneJobEach(FaultKind::Trickle, 3);
}

TEST(ServerFaults, GarbledAnswersMakeOneJob)
{
    test::expectOneJobEach(FaultKind::Garble, 6);
}

TEST(ServerFaults, HttpErrorsMakeOneJob)
{
    test::expectOneJobEach(FaultKind::HttpError, 5);
}

TEST(ServerFaults, IppErrorsMakeOneJob)
{
    test::expectOneJobEach(FaultKind::IppError, 5);
}

TEST(ServerFaults, ClosedConnectionsMakeOneJob)
{
    test::expectOneJobEach(FaultKind::CloseAtOnce, 1);
}
