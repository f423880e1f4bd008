#pragma once

class PPDCheck;

/// Holds the PPD against the table and the rules of the Print Settings panel.
void checkPrintSettings(PPDCheck &check);
