#pragma once

#include <QtCore/QJsonObject>

class PDEPanelInspection;

/// The controls of the panel's view by name, each as it is now; empty before the view is loaded.
QJsonObject controlReports(const PDEPanelInspection &panel);

/// The labels of the panel's view by name.
QJsonObject labelReports(const PDEPanelInspection &panel);
