#pragma once

class Bundle;
class PPDCheck;

/// Holds the PPD against the table and the rules of the Color Settings panel, and its colour
/// matching against the bundle's pictures.
void checkColorSettings(PPDCheck &check, const Bundle &bundle);
