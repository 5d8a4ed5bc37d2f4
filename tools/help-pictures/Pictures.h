#pragma once

class PictureWindow;

/// What there is to see of each part of the program. Each begins with the window as the one before has left it.

void takeProjectManager(PictureWindow& stage);
void takeSettings(PictureWindow& stage);
void takeProcessorSettings(PictureWindow& stage);
void takeWindow(PictureWindow& stage);
void takeEditor(PictureWindow& stage);
void takeMessages(PictureWindow& stage);
void takeRecovery(PictureWindow& stage);
void takeDeviceMaps(PictureWindow& stage);
void takeExternalPrograms(PictureWindow& stage);
void takeSimulator(PictureWindow& stage);
void takeImport(PictureWindow& stage);

/// Keeps texts for the next start of the window, as if the last one had not been closed.
void keepTexts(PictureWindow& stage);
