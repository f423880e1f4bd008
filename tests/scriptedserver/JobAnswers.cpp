#include "tests/scriptedserver/JobAnswers.h"

#include "tests/scriptedserver/GoodAnswers.h"
#include "tests/scriptedserver/IppBytes.h"

Steps jobInState(ipp_jstate_t state, const char *reason, const char *message)
{
    IppBytes answer;
    answer.group(IPP_TAG_JOB)
        .integer(IPP_TAG_INTEGER, "job-id", kGoodJob)
        .integer(IPP_TAG_ENUM, "job-state", state)
        .attribute(IPP_TAG_KEYWORD, "job-state-reasons", reason);
    if (message)
        answer.attribute(IPP_TAG_TEXT, "job-printer-state-message", message);
    return answerIpp(answer.ended());
}
