#include "tests/scriptedserver/GoodAnswers.h"

#include "dialog/cups/IppAnswer.h"
#include "tests/built/BuiltFiles.h"
#include "tests/scriptedserver/IppBytes.h"

#include <QtCore/QFile>

namespace {

ssize_t writeTo(void *context, ipp_uchar_t *buffer, size_t bytes)
{
    static_cast<QByteArray *>(context)->append(reinterpret_cast<const char *>(buffer),
                                               static_cast<qsizetype>(bytes));
    return static_cast<ssize_t>(bytes);
}

QByteArray written(const IppHandle &message)
{
    QByteArray bytes;
    ipp_state_t state = IPP_STATE_IDLE;
    while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR)
        state = ippWriteIO(&bytes, writeTo, 1, nullptr, message.get());
    return bytes;
}

int isOfJob(void *, ipp_t *, ipp_attribute_t *attribute)
{
    return ippGetGroupTag(attribute) == IPP_TAG_JOB ? 1 : 0;
}

QByteArray thePrinter()
{
    return IppBytes()
        .group(IPP_TAG_PRINTER)
        .attribute(IPP_TAG_NAME, "printer-name", "photo")
        .attribute(IPP_TAG_TEXT, "printer-info", "The good printer")
        .boolean("printer-is-accepting-jobs", true)
        .integer(IPP_TAG_ENUM, "printer-state", IPP_PSTATE_IDLE)
        .ended();
}

QByteArray theJob(const IppHandle &request, const QByteArray &createdJob)
{
    const IppHandle answer(ippNewResponse(request.get()));
    ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_INTEGER, "job-id", kGoodJob);
    ippAddInteger(answer.get(), IPP_TAG_JOB, IPP_TAG_ENUM, "job-state", IPP_JSTATE_PENDING);
    ippAddString(answer.get(), IPP_TAG_JOB, IPP_TAG_KEYWORD, "job-state-reasons", nullptr, "none");
    if (!createdJob.isEmpty())
        ippCopyAttributes(answer.get(), readIppAnswer(createdJob).ipp.get(), 0, isOfJob, nullptr);
    return written(answer);
}

} // namespace

QByteArray goodAnswer(const QByteArray &request, const QByteArray &createdJob)
{
    const IppHandle asked = readIppAnswer(request).ipp;
    switch (ippGetOperation(asked.get())) {
    case IPP_OP_CUPS_GET_PRINTERS:
    case IPP_OP_CUPS_GET_DEFAULT:
    case IPP_OP_GET_PRINTER_ATTRIBUTES:
        return thePrinter();
    case IPP_OP_CREATE_JOB:
    case IPP_OP_SEND_DOCUMENT:
    case IPP_OP_GET_JOB_ATTRIBUTES:
        return theJob(asked, createdJob);
    case IPP_OP_CANCEL_JOB:
    case IPP_OP_VALIDATE_JOB:
    case IPP_OP_RELEASE_JOB:
        return IppBytes().ended();
    default:
        return IppBytes(IPP_STATUS_ERROR_OPERATION_NOT_SUPPORTED).ended();
    }
}

QByteArray goodPPD()
{
    QFile file(samplePPD(QStringLiteral("velkaro-px-t900")));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
