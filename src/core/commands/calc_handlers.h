#pragma once
// The operator keys and the geometry formula keys of the calculator, and
// their entries in the File menu and the context menu mnuPopup1.

namespace brenko {

struct App;

void Plus_Click(App& app);
void Minus_Click(App& app);
void Multiply_Click(App& app);
void Divide_Click(App& app);
void Equal_Click(App& app);
void Square_Click(App& app);
void SquareRoot_Click(App& app);

// File, Formulas and the keys of the same names.
void Circumference_Click(App& app);
void CircArea_Click(App& app);
void CylVolume_Click(App& app);
void mnuDiagonal_Click(App& app);

void mnuPopUp1Circumference_Click(App& app);
void mnuPopUp1AreaofCircle_Click(App& app);
void mnuPopUp1VolumeofCylinder_Click(App& app);
void mnuPopUp1Diagonal_Click(App& app);

}  // namespace brenko
