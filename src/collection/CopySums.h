#pragma once

// Sums of some deliveries of one animal.
struct MilkSums {
    double liters = 0;
    double amount = 0; // rupees
    double litersByFat = 0;

    // Weighted by litres: ten litres of thin milk count for more than one of rich. 0 for no milk.
    double AverageFat() const;
};

// The same for each half of the day, and for both.
struct HalfDaySums {
    MilkSums morning;
    MilkSums evening;

    MilkSums Both() const;
};

// The sums over MilkCollectionsTemp: of the open shift, or of the member and period in the frame. Rows of
// another company, animal or half of the day are left out.
struct CopySums {
    HalfDaySums cow;
    HalfDaySums buff;
};

// Walks the copy anew; nothing is kept between two calls.
CopySums WalkCopy();
