; A deep blast: a crack, a falling boom, a cloud of noise that darkens, and debris raining down.
<CsoundSynthesizer>
<CsInstruments>
sr = 88200
ksmps = 10
nchnls = 2
0dbfs = 1
seed 7

opcode Place, 0, ai
  aIn, iPan xin
  outs aIn * cos(iPan * $M_PI_2), aIn * sin(iPan * $M_PI_2)
endop

instr Crack
  aEnv transeg 1, p3, -8, 0
  aNoise rand 1, 0.21
  Place butterhp:a(aNoise * aEnv, 900) * p4, 0.5
endin

instr Boom
  aEnv transeg 0, 0.004, 0, 1, p3 - 0.004, -4, 0
  kFreq transeg 190, 0.10, -3, 84, p3 - 0.10, -2, 46
  aBoom oscili aEnv, kFreq
  Place tanh(aBoom * 2.6) * p4, 0.5
endin

; p5 pan, p6 seed: one cloud for each side
instr Cloud
  aEnv transeg 0, 0.006, 0, 0.7, 0.16, -1.5, 0.6, p3 - 0.166, -3.5, 0
  kCut transeg 6000, 0.18, -3, 2600, p3 - 0.18, -3, 260
  aNoise rand 1, p6
  aLow moogladder aNoise, kCut, 0.12
  Place tanh(aLow * aEnv * 4) * p4, p5
endin

; p5 pitch, p6 pan: a stone knocks on the ground
instr Stone
  aEnv transeg 0, 0.001, 0, 1, p3 - 0.001, -6, 0
  aNoise rand 1, frac(p5 * 0.0137)
  aKnock butterbp aNoise * aEnv, p5, p5 * 0.22
  Place aKnock * p4, p6
endin
</CsInstruments>
<CsScore>
i "Crack" 0    0.06 0.25
i "Boom"  0    0.80 0.36
i "Cloud" 0    1.05 0.60 0.12 0.33
i "Cloud" 0    1.05 0.60 0.88 0.71
i "Stone" 0.24 0.06 1.26 1900 0.20
i "Stone" 0.31 0.05 0.99 2600 0.75
i "Stone" 0.39 0.07 1.08 1300 0.55
i "Stone" 0.47 0.05 0.81 2150 0.10
i "Stone" 0.53 0.06 0.76 1600 0.90
i "Stone" 0.61 0.05 0.61 2800 0.35
i "Stone" 0.70 0.06 0.50 1450 0.65
i "Stone" 0.80 0.05 0.36 2300 0.25
</CsScore>
</CsoundSynthesizer>
