#pragma once

class Label;

// Fills the labels that most screens carry with the name and the year of the selected company; without
// one they stay empty.
void ShowCompany(Label& lblCompanyTitle, Label& lblAcYear);
