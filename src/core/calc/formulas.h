#pragma once
// The geometry formula keys and their context-menu twins. A formula key only
// resets the engine, sets the formula stage and asks for the first
// measurement in the prompt line; Calculate does the rest when Equal is
// pressed.

namespace brenko {

struct App;

void Circumference_Click(App& app);
void CircArea_Click(App& app);
void CylVolume_Click(App& app);
void mnuDiagonal_Click(App& app);

void mnuPopUp1Circumference_Click(App& app);
void mnuPopUp1AreaofCircle_Click(App& app);
void mnuPopUp1VolumeofCylinder_Click(App& app);
void mnuPopUp1Diagonal_Click(App& app);

}  // namespace brenko
