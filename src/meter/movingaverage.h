#pragma once

// A running mean over the last `window` samples, kept in a fixed buffer.
// Until the window has filled, Add() hands the sample straight back.
struct MovingAverage
{
    static constexpr int kCapacity = 50;

    int count = 0;
    int window = 10;
    bool full = false;
    double samples[kCapacity] = {};

    // Stores x and returns the mean of the window, or x itself while filling.
    double Add(float x);
    void Clear();
};
