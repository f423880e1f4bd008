#pragma once

#include <QtCore/QJsonObject>

class PDEPanelControls;

/// The controls of the panel's view by name, each as it is now; empty before the view is loaded.
QJsonObject controlReports(const PDEPanelControls &panel);

/// The labels of the panel's view by name.
QJsonObject labelReports(const PDEPanelControls &panel);
