#pragma once

#include <QtCore/QString>

/// The keys under which a filter's inputs are set and its output is asked for. The four rows of
/// the colour matrix and its bias have no public constants elsewhere and are spelled out by most
/// callers; they stand here so that a misspelling does not compile.
inline const QString kCIInputImageKey = QStringLiteral("inputImage");
inline const QString kCIOutputImageKey = QStringLiteral("outputImage");
inline const QString kCIInputBrightnessKey = QStringLiteral("inputBrightness");
inline const QString kCIInputContrastKey = QStringLiteral("inputContrast");
inline const QString kCIInputSaturationKey = QStringLiteral("inputSaturation");
inline const QString kCIInputColorKey = QStringLiteral("inputColor");
inline const QString kCIInputIntensityKey = QStringLiteral("inputIntensity");
inline const QString kCIInputRVectorKey = QStringLiteral("inputRVector");
inline const QString kCIInputGVectorKey = QStringLiteral("inputGVector");
inline const QString kCIInputBVectorKey = QStringLiteral("inputBVector");
inline const QString kCIInputAVectorKey = QStringLiteral("inputAVector");
inline const QString kCIInputBiasVectorKey = QStringLiteral("inputBiasVector");
