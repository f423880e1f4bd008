#include "dialog/cups/JobTemplate.h"

#include "dialog/cups/OptionAttribute.h"
#include "dialog/cups/ServerRequests.h"
#include "dialog/job/OutgoingText.h"

IppHandle jobTemplate(ipp_op_t operation, const JobRequest &job, const AuthInfo &who)
{
    IppHandle request = queueRequest(operation, job.queue);
    ippAddString(request.get(), IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr,
                 outgoingTitle(job.title).constData());
    addAuthInfo(request.get(), who);
    for (const JobOption &option : job.options)
        if (!isOfSubscription(option))
            addOptionAttribute(request.get(), option);
    for (const JobOption &option : job.options)
        if (isOfSubscription(option))
            addSubscription(request.get(), option);
    return request;
}
