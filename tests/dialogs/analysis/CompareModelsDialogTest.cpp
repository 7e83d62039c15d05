int none;
