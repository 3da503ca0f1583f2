// A library that stands between a program and the system: loaded before all others, it lets one of
// the calls by which files are made and changed fail, or one by which a folder is read.
#pragma once

extern "C" {

// From now on the so-manieth call, counted from 1, fails with an error; 0 for none.
void LetCallFail(int number, int error);

// Number of calls since then.
int CallsMade();

// From now on the so-manieth entry of a folder cannot be read; counted apart, since reading changes
// nothing. 0 for none.
void LetReadingFail(int number, int error);
}
