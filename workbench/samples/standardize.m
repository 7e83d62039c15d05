% Gives each column of X the mean 0 and the standard deviation 1, for GNU Octave.
Z = (X - mean (X)) ./ std (X);
printf ("%d columns standardized\n", columns (Z));
