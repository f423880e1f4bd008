#pragma once

#include "dialog/job/JobOption.h"

#include <cups/cups.h>

/// Adds the option to the request as a job attribute: the standard ones in their own syntax, all
/// others as names. A choice "True" or "On" stays what it is; libcups' own encoder would make a
/// boolean of it, and several values of one with a comma.
void addOptionAttribute(ipp_t *request, const JobOption &option);

/// Whether the option is no attribute of the job but one of a subscription that comes with it.
bool isOfSubscription(const JobOption &option);

/// Adds the subscription that the option asks for: to be told of the job's end. After all
/// attributes of the job.
void addSubscription(ipp_t *request, const JobOption &option);

/// The attribute's value in the form that the option had.
QString attributeText(ipp_attribute_t *attribute);
